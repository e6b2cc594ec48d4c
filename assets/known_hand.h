#pragma once

#include "engine/deck.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace quillet
{

// The hand of the pictures in docs/: a pair of jacks and an ace, which many a player holds along.
// The pair alone is the best play, and becomes a full house.
class KnownHand : public DeckSource
{
public:
    static constexpr std::array<std::int16_t, 2> jacks{0, 3}; // their slots
    static constexpr std::int16_t ace = 1;

    [[nodiscard]] PokerDeck nextDeck() override
    {
        // The hand, and behind it each slot's replacement; those of the jacks never come.
        const std::array<std::int16_t, 10> used{id(11, 2), id(1, 3), id(7, 1),  id(11, 0),
                                                id(4, 3),  id(2, 0), id(13, 1), id(11, 3),
                                                id(3, 0),  id(13, 0)};
        PokerDeck deck = buildDeck();
        for (std::size_t place = 0; place < used.size(); ++place)
            std::swap(deck[place], *std::ranges::find(deck, used[place]));
        return deck;
    }

private:
    static constexpr std::int16_t id(int rank, int suit)
    {
        return static_cast<std::int16_t>((rank - 1) * 4 + suit);
    }
};

} // namespace quillet
