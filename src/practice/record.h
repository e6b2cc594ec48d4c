#pragma once

#include "practice/answer.h"

#include <vector>

namespace quillet::practice
{

enum class State { unknown, shaky, firm };

// What the answers so far show about each decision. Recent answers count more.
class Record
{
public:
    explicit Record(const Decisions& decisions);

    void add(DecisionId id, bool right);

    // The mean of the Beta distribution of the player's error rate.
    [[nodiscard]] double doubt(DecisionId id) const;
    [[nodiscard]] State state(DecisionId id) const;
    [[nodiscard]] int answers(DecisionId id) const { return m_tallies[id].answers; }

private:
    struct Tally {
        double expected = 0; // error rate before any answer
        double strength = 0; // how many answers that counts as
        double right = 0;    // answers, each weighing less with every later one
        double wrong = 0;
        int answers = 0;
    };

    std::vector<Tally> m_tallies;
};

} // namespace quillet::practice
