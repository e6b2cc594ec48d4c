#pragma once

#include "practice/course.h"
#include "practice/record.h"

#include <QAbstractTableModel>

#include <memory>
#include <set>
#include <vector>

namespace quillet::practice_window
{

// The decisions with what the answers show about each. They can be ticked.
class DecisionModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { name, state, asked, columns };
    static constexpr int sortRole = Qt::UserRole;

    using QAbstractTableModel::QAbstractTableModel;

    // The same decisions stay ticked.
    void use(std::shared_ptr<const practice::Course> course, const practice::Record& record);
    void update(practice::DecisionId id, const practice::Record& record);

    [[nodiscard]] std::vector<practice::DecisionId> ticked() const;
    [[nodiscard]] const std::set<std::string>& tickedNames() const { return m_ticked; }
    // Unknown names have no effect.
    void tick(std::set<std::string> names);
    void tickAll(practice::State which);
    [[nodiscard]] int count(practice::State which) const;

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role) const override;

signals:
    void tickedChanged();

private:
    struct Row {
        practice::State state = practice::State::unknown;
        int asked = 0;
    };

    [[nodiscard]] QString text(practice::DecisionId id, int column) const;
    [[nodiscard]] QString details(practice::DecisionId id) const;
    [[nodiscard]] QVariant sortKey(practice::DecisionId id, int column) const;
    [[nodiscard]] std::string nameOf(practice::DecisionId id) const;

    std::shared_ptr<const practice::Course> m_course;
    std::vector<Row> m_rows;
    std::set<std::string> m_ticked; // names, which are the same for every pay table
};

} // namespace quillet::practice_window
