#pragma once

#include "engine/card.h"
#include "engine/deck.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <utility>

// The hand of the pictures in docs/: a pair of jacks and an ace, which many players keep as well.
// The pair alone is the best play, and becomes a full house.
namespace quillet::known_hand
{

inline constexpr std::array<std::int16_t, 2> jacks{0, 3}; // their slots
inline constexpr std::int16_t ace = 1;

[[nodiscard]] inline PokerDeck deck()
{
    // The hand, and behind it each slot's replacement; the jacks need none.
    const std::array<std::int16_t, 10> used{
        cardIdOf(11, 2), cardIdOf(1, 3),  cardIdOf(7, 1),  cardIdOf(11, 0), cardIdOf(4, 3),
        cardIdOf(2, 0),  cardIdOf(13, 1), cardIdOf(11, 3), cardIdOf(3, 0),  cardIdOf(13, 0)};
    PokerDeck deck = buildDeck();
    for (std::size_t place = 0; place < used.size(); ++place)
        std::swap(deck[place], *std::ranges::find(deck, used[place]));
    return deck;
}

} // namespace quillet::known_hand
