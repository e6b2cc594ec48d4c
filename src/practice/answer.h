#pragma once

#include "practice/decisions.h"

#include <array>
#include <cstdint>

namespace quillet::practice
{

// Cards that a player sees, in ascending order, and which of them are held.
struct HeldDeal {
    std::array<odds::DeckPlace, 5> places{};
    std::uint8_t held = 0; // a Hold
};

// The deal as DealtHand takes it, whatever the order in which the cards lie.
[[nodiscard]] HeldDeal heldDeal(const std::array<odds::DeckPlace, 5>& cards, odds::Hold held);

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
