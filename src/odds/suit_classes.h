#pragma once

#include "engine/card.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>
#include <functional>
#include <span>
#include <vector>

namespace quillet::odds
{

// Sets of cards that become the same when suits change names form one class. Every member of a
// class has the same odds, and the 2,598,960 hands form 134,459 classes.

// The place of a card when the deck is sorted by suit, then rank: 0..51.
using DeckPlace = std::uint8_t;

// The cards by their places.
inline constexpr std::array<Card, 52> deckBySuit = [] {
    std::array<Card, 52> deck;
    for (int place = 0; place < 52; ++place)
        deck[static_cast<std::size_t>(place)] = makeCard(cardIdOf(place % 13 + 1, place / 13));
    return deck;
}();

[[nodiscard]] constexpr Card cardAt(DeckPlace place)
{
    return deckBySuit[place];
}
[[nodiscard]] constexpr std::array<Card, 5> cardsAt(const std::array<DeckPlace, 5>& places)
{
    std::array<Card, 5> cards;
    std::ranges::transform(places, cards.begin(), cardAt);
    return cards;
}

[[nodiscard]] constexpr DeckPlace placeOf(const Card& card)
{
    return static_cast<DeckPlace>(card.suit * 13 + card.rank - 1);
}

// The ranks held in each suit; bit 0 is the ace.
using SuitSets = std::array<unsigned, 4>;

// The places of the cards, ascending, written to the front of the array.
template <std::size_t Size>
std::array<DeckPlace, Size> placesOf(const SuitSets& sets)
{
    std::array<DeckPlace, Size> places{};
    std::size_t next = 0;
    int suitStart = 0;
    for (unsigned set : sets) {
        for (; set != 0; set &= set - 1)
            places[next++] = static_cast<DeckPlace>(suitStart + std::countr_zero(set));
        suitStart += 13;
    }
    return places;
}

// Calls visit once for every class of sets of `size` cards, 0..5, always in the same order, with
// one member of the class.
void forEachClass(int size, const std::function<void(SuitSets)>& visit);

// Calls visit for every member of the class. The order of the suits in `sets` does not matter.
template <typename Visit>
void forEachMember(SuitSets sets, const Visit& visit)
{
    std::ranges::sort(sets);
    do {
        visit(sets);
    } while (std::ranges::next_permutation(sets).found);
}

// How many members the class of these sets has, 1 to 24.
[[nodiscard]] int classSize(const SuitSets& sets);

} // namespace quillet::odds
