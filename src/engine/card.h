#pragma once

#include <cassert>
#include <cstdint>

namespace quillet
{

// Card numbers run rank by rank from the aces up, and through the suits of each rank.
[[nodiscard]] constexpr std::int16_t rankOf(std::int32_t cardId)
{
    return static_cast<std::int16_t>(cardId / 4 + 1);
}
[[nodiscard]] constexpr std::int16_t suitOf(std::int32_t cardId)
{
    return static_cast<std::int16_t>(cardId % 4);
}
[[nodiscard]] constexpr std::int16_t cardIdOf(std::int32_t rank, std::int32_t suit)
{
    return static_cast<std::int16_t>((rank - 1) * 4 + suit);
}

// One card. The suits run clubs, diamonds, hearts, spades. The fillers for cards that are not
// held have ranks above 13 and suits above 3, and no card number.
struct Card {
    std::int16_t cardId = 0; // 0..51
    std::int16_t rank = 1;   // 1..13: ace 1, jack 11, queen 12, king 13
    std::int16_t suit = 0;   // 0..3

    friend bool operator==(const Card&, const Card&) = default;
};

[[nodiscard]] constexpr Card makeCard(std::int16_t cardId)
{
    assert(cardId >= 0 && cardId < 52);
    return {cardId, rankOf(cardId), suitOf(cardId)};
}

} // namespace quillet
