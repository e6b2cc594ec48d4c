#pragma once

#include "practice_window/decision_model.h"

#include <QTableView>

class QLabel;

namespace quillet::practice_window
{

// The decisions to look through and tick, with how many are shaky and firm.
class DecisionList : public QWidget
{
    Q_OBJECT

public:
    explicit DecisionList(DecisionModel& model, QWidget* parent = nullptr);

private:
    void showCounts();

    DecisionModel& m_model;
    QLabel* m_counts;
};

} // namespace quillet::practice_window
