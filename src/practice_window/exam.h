#pragma once

#include "practice/verdict.h"

#include <QString>

class QWidget;

namespace quillet::practice_window
{

// An exam under way: its answers so far.
class Exam
{
public:
    static constexpr int questions = 100;

    explicit Exam(int passMark) : m_passMark(passMark) {}

    void add(const practice::Verdict& verdict);

    [[nodiscard]] int answered() const { return m_answered; }
    [[nodiscard]] bool isOver() const { return m_answered == questions; }
    // "Passed: 97 of 100 are right; 95 are enough."
    [[nodiscard]] QString result() const;
    [[nodiscard]] QString cost() const;

    // Shows the result and the mistakes until the player closes the dialog.
    void showResult(QWidget* parent) const;

private:
    struct Mistake {
        QString deal;
        QString held;
        QString best;
        QString cost;
        QString reason;
    };

    int m_passMark;
    int m_answered = 0;
    double m_cost = 0; // credits
    std::vector<Mistake> m_mistakes;
};

} // namespace quillet::practice_window
