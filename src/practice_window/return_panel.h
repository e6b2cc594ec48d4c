#pragma once

#include "practice_window/return_history.h"

#include <QWidget>

class QLabel;

namespace quillet::practice_window
{

// What the player's own play returns: in words, and as a line over time with its interval.
class ReturnPanel : public QWidget
{
    Q_OBJECT

public:
    explicit ReturnPanel(const ReturnHistory& history, QWidget* parent = nullptr);

private:
    void showReturn();

    const ReturnHistory& m_history;
    QLabel* m_words;
    QLabel* m_others;
    QWidget* m_line;
};

} // namespace quillet::practice_window
