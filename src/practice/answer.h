#pragma once

#include "practice/decisions.h"

namespace quillet::practice
{

enum class Mistake {
    rival, // the best hold of the kind that the decision is about
    other,
    wild, // cards of no kind
};
inline constexpr std::size_t mistakes = 3;

// What one answer shows about the player, by the standard of perfect play.
struct Answer {
    DecisionId decision = 0;
    double cost = 0;                  // in credits; 0 for a hold that is worth as much as the best
    Mistake mistake = Mistake::other; // means nothing in a right answer

    [[nodiscard]] bool isRight() const { return cost <= 0; }
};

[[nodiscard]] Answer answerTo(const Decisions& decisions, const odds::DealtHand& hand,
                              odds::Hold held);

} // namespace quillet::practice
