#include "practice_window/decision_list.h"

#include "platform/number_keys.h"

#include <QGuiApplication>
#include <QHeaderView>
#include <QLabel>
#include <QPainter>
#include <QSortFilterProxyModel>
#include <QStyledItemDelegate>
#include <QVBoxLayout>

namespace quillet::practice_window
{

namespace
{

// Leaves the digits to the window, where they hold cards.
class DecisionView : public QTableView
{
protected:
    void keyPressEvent(QKeyEvent* event) override
    {
        if (digitOfKey(*event, QGuiApplication::platformName()))
            event->ignore();
        else
            QTableView::keyPressEvent(event);
    }

    // In a narrow window the names of the decisions need the room.
    void resizeEvent(QResizeEvent* event) override
    {
        setColumnHidden(DecisionModel::asked, width() < 400);
        QTableView::resizeEvent(event);
    }
};

// Styles draw a tick box in shades of its ground, which nobody sees on a dark one.
class FramedTicks : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override
    {
        QStyledItemDelegate::paint(painter, option, index);
        if (index.column() != DecisionModel::name)
            return;
        QStyleOptionViewItem item = option;
        initStyleOption(&item, index);
        const QStyle& style = *option.widget->style();
        QColor edge = option.palette.color(QPalette::Text);
        edge.setAlpha(150);
        painter->setPen(edge);
        painter->drawRect(
            style.subElementRect(QStyle::SE_ItemViewItemCheckIndicator, &item, option.widget)
                .adjusted(0, 0, -1, -1));
    }
};

QTableView* viewOf(DecisionModel& model)
{
    auto* view = new DecisionView;
    auto* sorted = new QSortFilterProxyModel(view);
    sorted->setSourceModel(&model);
    sorted->setSortRole(DecisionModel::sortRole);
    view->setModel(sorted);
    view->setItemDelegate(new FramedTicks(view));
    view->setObjectName("decisions");
    view->setAccessibleName("Decisions");
    view->setSelectionBehavior(QAbstractItemView::SelectRows);
    view->setSelectionMode(QAbstractItemView::SingleSelection);
    view->setTabKeyNavigation(false);
    view->setShowGrid(false);
    view->setAlternatingRowColors(true);
    view->setSortingEnabled(true);
    view->sortByColumn(DecisionModel::state, Qt::AscendingOrder);
    view->setWordWrap(false);
    view->verticalHeader()->hide();
    view->verticalHeader()->setDefaultSectionSize(view->fontMetrics().height() + 8);
    QHeaderView& header = *view->horizontalHeader();
    header.setSectionResizeMode(DecisionModel::name, QHeaderView::Stretch);
    for (const int column : {DecisionModel::state, DecisionModel::asked})
        header.setSectionResizeMode(column, QHeaderView::ResizeToContents);
    header.setHighlightSections(false);
    return view;
}

} // namespace

DecisionList::DecisionList(DecisionModel& model, QWidget* parent)
    : QWidget(parent), m_model(model), m_counts(new QLabel)
{
    m_counts->setObjectName("decisionCounts");
    m_counts->setWordWrap(true);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(m_counts);
    column->addWidget(viewOf(model), 1);
    connect(&model, &QAbstractItemModel::modelReset, this, &DecisionList::showCounts);
    connect(&model, &QAbstractItemModel::dataChanged, this, &DecisionList::showCounts);
    connect(&model, &DecisionModel::tickedChanged, this, &DecisionList::showCounts);
}

void DecisionList::showCounts()
{
    const std::size_t ticked = m_model.ticked().size();
    const QString chosen = ticked == 0 ? "Tick some to practise only these."
                                       : QString("Only the %1 ticked come up.").arg(ticked);
    m_counts->setText(QString("%1 shaky, %2 firm, %3 unknown. %4")
                          .arg(m_model.count(practice::State::shaky))
                          .arg(m_model.count(practice::State::firm))
                          .arg(m_model.count(practice::State::unknown))
                          .arg(chosen));
}

} // namespace quillet::practice_window
