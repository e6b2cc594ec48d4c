#pragma once

#include "engine/hand_evaluation.h"
#include "engine/play_rules.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>

// The chart's rules, computed at compile time for every set of ranks. A row depends either on the
// ranks alone or on the cards of one suit alone. So a hand's play code is the minimum of the codes
// of its ranks without suits and of its four suits, each with fillers for the other cards.
namespace quillet::tables
{

inline constexpr std::size_t rankSets = 1 << 13; // bit 0 is the ace, bit 12 the king

using CodeOfRankSet = std::array<std::uint8_t, rankSets>;

// The ranks of a hand, by suit: bits 0..12 clubs, 16..28 diamonds, and so on.
using SuitLanes = std::uint64_t;
inline constexpr unsigned laneBits = 16;

// The bits between the lanes, where no rank of the deck lies.
inline constexpr SuitLanes noRanks = 0xe000'e000'e000'e000U;

constexpr unsigned lane(SuitLanes lanes, unsigned suit)
{
    return static_cast<std::uint16_t>(lanes >> (laneBits * suit));
}

// The bit of a card. Values outside the deck give an arbitrary bit.
constexpr SuitLanes laneBit(unsigned rank, unsigned suit)
{
    return SuitLanes{1} << ((suit * laneBits + rank) % 64);
}

// The cards of a set, in one suit, and fillers for the rest.
constexpr rules::SortedCards cardsOfRankSet(std::size_t set)
{
    rules::SortedCards cards;
    int slot = 0;
    for (rules::RankAndSuit& card : cards) {
        const Card filler = fillerCard(slot++);
        card = {filler.rank, filler.suit};
        if (set != 0)
            card = {std::countr_zero(set) + 1, 0};
        set &= set - 1;
    }
    return cards;
}

// The code of each set of up to five ranks, as its cards in one suit over fillers have it.
template <typename CodeOf>
constexpr CodeOfRankSet codesOfRankSets(CodeOf codeOf)
{
    CodeOfRankSet codes{};
    for (std::size_t set = 0; set < rankSets; ++set)
        if (std::popcount(set) <= 5)
            codes[set] = static_cast<std::uint8_t>(codeOf(cardsOfRankSet(set)));
    return codes;
}

// The codes of ranks alone, whatever their suits.
constexpr std::int16_t codeOfRanks(const rules::SortedCards& cards)
{
    return rules::playCode(rules::HandFacts(rules::RankFacts(cards)), false);
}

constexpr CodeOfRankSet codesOfOneSuit(bool finalHand)
{
    return codesOfRankSets([finalHand](const rules::SortedCards& cards) {
        return rules::playCode(rules::HandFacts(cards), finalHand);
    });
}

// The aces, jacks, queens and kings of a set of ranks.
inline constexpr unsigned highRanks = [] {
    unsigned set = 0;
    for (int rank = 1; rank <= 13; ++rank)
        set |= rules::isHigh(rank) ? 1U << (rank - 1) : 0U;
    return set;
}();

inline constexpr std::size_t shapes = 32;

// The ranks that occur at least twice, three times, four times.
struct Repeats {
    unsigned twice = 0;
    unsigned thrice = 0;
    unsigned fourTimes = 0;

    // All that the chart needs to know about them. Three of a kind also counts as a pair; in a full
    // house both ranks do.
    [[nodiscard]] constexpr std::size_t shape() const
    {
        const bool pair = twice != 0;
        const bool highPair = (twice & highRanks) != 0;
        const bool twoPairs = (twice & (twice - 1)) != 0;
        const bool threeAlike = thrice != 0;
        const bool fourAlike = fourTimes != 0;
        // A sum, because compilers turn conditions into branches, which random hands mispredict.
        return pair + 2U * highPair + 4U * twoPairs + 8U * threeAlike + 16U * fourAlike;
    }
};

// The repeated ranks of a hand, in ascending order; 0 for each other card.
using RepeatedRanks = std::array<int, 5>;

// One hand of each shape: with and without high cards.
inline constexpr std::array<RepeatedRanks, 10> handsByShape{{{1, 1},
                                                             {2, 2},
                                                             {1, 1, 2, 2},
                                                             {2, 2, 3, 3},
                                                             {1, 1, 1},
                                                             {2, 2, 2},
                                                             {1, 1, 1, 2, 2},
                                                             {2, 2, 2, 3, 3},
                                                             {1, 1, 1, 1},
                                                             {2, 2, 2, 2}}};

constexpr Repeats repeatsIn(const RepeatedRanks& hand)
{
    unsigned once = 0;
    Repeats repeats;
    for (const int rank : hand) {
        const unsigned bit = rank == 0 ? 0U : 1U << (rank - 1);
        repeats.fourTimes |= repeats.thrice & bit;
        repeats.thrice |= repeats.twice & bit;
        repeats.twice |= once & bit;
        once |= bit;
    }
    return repeats;
}

using CodeOfShape = std::array<std::uint8_t, shapes>;

// Impossible shapes, and the shape of no repeats, have the code of the last row.
constexpr CodeOfShape codesOfShapes()
{
    CodeOfShape codes{};
    codes.fill(static_cast<std::uint8_t>(rules::chart.size()));
    for (const RepeatedRanks& hand : handsByShape) {
        rules::SortedCards cards = cardsOfRankSet(0);
        for (std::size_t card = 0; card < hand.size() && hand[card] != 0; ++card)
            cards[card].rank = hand[card];
        codes[repeatsIn(hand).shape()] = static_cast<std::uint8_t>(codeOfRanks(cards));
    }
    return codes;
}

inline constexpr CodeOfRankSet ranksOnce = codesOfRankSets(codeOfRanks);
inline constexpr CodeOfRankSet oneSuitDealt = codesOfOneSuit(false);
inline constexpr CodeOfRankSet oneSuitFinal = codesOfOneSuit(true);
inline constexpr CodeOfShape repeatedRanks = codesOfShapes();

} // namespace quillet::tables
