#pragma once

#include "practice_window/hold_bars.h"

class QLabel;

namespace quillet::practice_window
{

// What is said about an answer.
class FeedbackPanel : public QWidget
{
    Q_OBJECT

public:
    explicit FeedbackPanel(QWidget* parent = nullptr);

    // Before an answer: what to do.
    void showHint(const QString& hint);
    // The cards in the order in which they lie on the table. Gives it the focus, so that readers
    // read it.
    void show(const practice::Verdict& verdict, const std::array<odds::DeckPlace, 5>& cards);

private:
    QLabel* m_headline;
    QLabel* m_reason;
    HoldBars* m_bars;
    QLabel* m_rule;
};

} // namespace quillet::practice_window
