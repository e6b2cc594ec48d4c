#pragma once

#include "practice/decisions.h"

namespace quillet::practice
{

// What one answer shows about the player, by the standard of perfect play.
struct Answer {
    DecisionId decision = 0;
    double cost = 0;   // in credits; 0 for a hold that is worth as much as the best
    bool wild = false; // a wrong hold that keeps cards of no kind

    [[nodiscard]] bool isRight() const { return cost <= 0; }
};

[[nodiscard]] Answer answerTo(const Decisions& decisions, const odds::DealtHand& hand,
                              odds::Hold held);

} // namespace quillet::practice
