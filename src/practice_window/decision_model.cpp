#include "practice_window/decision_model.h"

#include <algorithm>
#include <array>
#include <utility>

namespace quillet::practice_window
{

namespace
{

using practice::DecisionId;
using practice::State;

QString wordFor(State state)
{
    switch (state) {
    case State::unknown:
        return "unknown";
    case State::shaky:
        return "shaky";
    case State::firm:
        return "firm";
    }
    return {};
}

QString markFor(State state)
{
    static const std::array<QString, 3> marks{"\u25cb", "\u25b2", "\u2714"};
    return marks.at(static_cast<std::size_t>(state));
}

} // namespace

void DecisionModel::use(std::shared_ptr<const practice::Course> course,
                        const practice::Record& record)
{
    beginResetModel();
    m_course = std::move(course);
    m_rows.resize(m_course->decisions.all().size());
    for (DecisionId id = 0; id < m_rows.size(); ++id)
        m_rows[id] = {record.state(id), record.answers(id)};
    endResetModel();
}

void DecisionModel::update(DecisionId id, const practice::Record& record)
{
    m_rows[id] = {record.state(id), record.answers(id)};
    const int row = static_cast<int>(id);
    emit dataChanged(index(row, 0), index(row, columns - 1));
}

std::vector<DecisionId> DecisionModel::ticked() const
{
    std::vector<DecisionId> ids;
    for (const std::string& each : m_ticked) {
        if (const auto id = m_course->decisions.find(each))
            ids.push_back(*id);
    }
    return ids;
}

void DecisionModel::tick(std::set<std::string> names)
{
    m_ticked = std::move(names);
    if (!m_rows.empty())
        emit dataChanged(index(0, name), index(rowCount() - 1, name), {Qt::CheckStateRole});
    emit tickedChanged();
}

void DecisionModel::tickAll(State which)
{
    std::set<std::string> names;
    for (DecisionId id = 0; id < m_rows.size(); ++id) {
        if (m_rows[id].state == which)
            names.insert(nameOf(id));
    }
    tick(std::move(names));
}

int DecisionModel::count(State which) const
{
    return static_cast<int>(std::ranges::count(m_rows, which, &Row::state));
}

int DecisionModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

int DecisionModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : columns;
}

QVariant DecisionModel::data(const QModelIndex& index, int role) const
{
    const auto id = static_cast<DecisionId>(index.row());
    switch (role) {
    case Qt::DisplayRole:
        return text(id, index.column());
    case Qt::ToolTipRole:
        return details(id);
    case Qt::CheckStateRole:
        if (index.column() == name)
            return m_ticked.contains(nameOf(id)) ? Qt::Checked : Qt::Unchecked;
        return {};
    case Qt::AccessibleTextRole:
        if (index.column() == name)
            return QString("%1, %2, asked: %3")
                .arg(text(id, name), wordFor(m_rows[id].state), text(id, asked));
        return {};
    case Qt::TextAlignmentRole:
        if (index.column() == asked)
            return QVariant(Qt::AlignRight | Qt::AlignVCenter);
        return {};
    case sortRole:
        return sortKey(id, index.column());
    default:
        return {};
    }
}

QString DecisionModel::text(DecisionId id, int column) const
{
    switch (column) {
    case name:
        return QString::fromStdString(nameOf(id));
    case state:
        return markFor(m_rows[id].state) + ' ' + wordFor(m_rows[id].state);
    default:
        return QString::number(m_rows[id].asked);
    }
}

QString DecisionModel::details(DecisionId id) const
{
    const practice::Decision& decision = m_course->decisions[id];
    return QString("%1\nIn %2 % of all deals; the best hold leads by %3 credits on average.")
        .arg(text(id, name))
        .arg(100 * decision.probability(), 0, 'f', 3)
        .arg(decision.lead(), 0, 'f', 2);
}

// Shaky decisions come first, and of equals those in which more is at stake.
QVariant DecisionModel::sortKey(DecisionId id, int column) const
{
    if (column == name)
        return text(id, name);
    if (column == asked)
        return -m_rows[id].asked;
    static constexpr std::array<double, 3> order{1, 0, 2}; // unknown, shaky, firm
    const practice::Decision& decision = m_course->decisions[id];
    const double stake = decision.probability() * decision.lead();
    return order.at(static_cast<std::size_t>(m_rows[id].state)) - stake / (1 + stake);
}

std::string DecisionModel::nameOf(DecisionId id) const
{
    return m_course->decisions[id].name();
}

bool DecisionModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    if (role != Qt::CheckStateRole || index.column() != name)
        return false;
    const std::string which = nameOf(static_cast<DecisionId>(index.row()));
    if (value.toInt() == Qt::Checked)
        m_ticked.insert(which);
    else
        m_ticked.erase(which);
    emit dataChanged(index, index, {Qt::CheckStateRole});
    emit tickedChanged();
    return true;
}

Qt::ItemFlags DecisionModel::flags(const QModelIndex& index) const
{
    const Qt::ItemFlags usual = QAbstractTableModel::flags(index);
    return index.column() == name ? usual | Qt::ItemIsUserCheckable : usual;
}

QVariant DecisionModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    return QStringList{"Decision", "State", "Asked"}.at(section);
}

} // namespace quillet::practice_window
