#pragma once

#include "practice/answer.h"
#include "practice/course.h"

#include <string>
#include <vector>

namespace quillet::practice
{

// A hold that matters for an answer.
struct ShownHold {
    std::string whose; // "Best, yours"
    odds::Hold hold = 0;
    double credits = 0;
};

// What a player is told about an answer. Holds are those of the cards in ascending order.
struct Verdict {
    odds::DealtHand hand;
    odds::Hold held = 0;
    Answer answer;
    Judgement judgement;
    std::string headline{};         // "Wrong: this costs 5.77 credits"
    std::string reason{};           // why the best hold beats the player's, or the next best one
    std::string rule{};             // the row that plays the deal perfectly, if there is one
    std::vector<ShownHold> holds{}; // best first
};

[[nodiscard]] Verdict verdictOn(const Course& course, const Standard& standard,
                                const odds::HeldDeal& deal);

} // namespace quillet::practice
