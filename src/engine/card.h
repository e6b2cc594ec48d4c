#pragma once

#include <cstdint>

namespace quillet
{

// One card. The suits run clubs, diamonds, hearts, spades. The fillers that stand for cards
// not held have ranks above 13 and suits above 3, and no card number.
struct Card {
    std::int16_t cardId = 0; // 0..51: (rank - 1) * 4 + suit
    std::int16_t rank = 1;   // 1..13: ace 1, jack 11, queen 12, king 13
    std::int16_t suit = 0;   // 0..3

    friend bool operator==(const Card&, const Card&) = default;
};

// The card with this number, 0..51.
[[nodiscard]] Card makeCard(std::int16_t cardId);

} // namespace quillet
