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

// Properties of repeated ranks, one bit each.
namespace shape
{
inline constexpr unsigned pair = 1;
inline constexpr unsigned highPair = 2;
inline constexpr unsigned twoPairs = 4;
inline constexpr unsigned threeAlike = 8;
inline constexpr unsigned fourAlike = 16;
inline constexpr std::size_t count = 32;
} // namespace shape

// The aces, jacks, queens and kings of a set of ranks.
inline constexpr unsigned highRanks = [] {
    unsigned set = 0;
    for (int rank = 1; rank <= 13; ++rank)
        set |= rules::isHigh(rank) ? 1U << (rank - 1) : 0U;
    return set;
}();

// The ranks that occur at least twice, three times, four times.
struct Repeats {
    unsigned twice = 0;
    unsigned thrice = 0;
    unsigned fourTimes = 0;

    // The `shape` bits. Three of a kind also counts as a pair; in a full house both ranks do.
    [[nodiscard]] constexpr std::size_t shapeOf() const
    {
        const bool twoRanks = (twice & (twice - 1)) != 0;
        // A sum, because compilers turn conditions into branches, which random hands mispredict.
        return unsigned{twice != 0} * shape::pair +
               unsigned{(twice & highRanks) != 0} * shape::highPair +
               unsigned{twoRanks} * shape::twoPairs + unsigned{thrice != 0} * shape::threeAlike +
               unsigned{fourTimes != 0} * shape::fourAlike;
    }
};

// One rank two to four times, another one twice or not at all, and fillers.
struct RepeatedRanks {
    int rank;
    int times; // 2..4
    int otherRank;
    int otherTimes; // 0 or 2

    [[nodiscard]] constexpr std::size_t shapeOf() const
    {
        const unsigned bit = 1U << (rank - 1);
        const unsigned otherBit = otherTimes == 2 ? 1U << (otherRank - 1) : 0U;
        return Repeats{bit | otherBit, times >= 3 ? bit : 0U, times == 4 ? bit : 0U}.shapeOf();
    }

    [[nodiscard]] constexpr std::uint8_t code() const
    {
        rules::SortedCards cards = cardsOfRankSet(0);
        auto card = cards.begin();
        for (int i = 0; i < times; ++i)
            (card++)->rank = rank;
        for (int i = 0; i < otherTimes; ++i)
            (card++)->rank = otherRank;
        return static_cast<std::uint8_t>(codeOfRanks(cards));
    }
};

template <typename Visit>
constexpr void forEachRepetition(const Visit& visit)
{
    for (int rank = 1; rank <= 13; ++rank)
        for (int otherRank = 1; otherRank <= 13; ++otherRank)
            for (int times = 2; rank != otherRank && times <= 4; ++times)
                for (int otherTimes = 0; otherTimes <= std::min(2, 5 - times); otherTimes += 2)
                    visit(RepeatedRanks{rank, times, otherRank, otherTimes});
}

using CodeOfShape = std::array<std::uint8_t, shape::count>;

// Impossible shapes, and the shape of no repeats, have the code of the last row.
constexpr CodeOfShape codesOfShapes()
{
    CodeOfShape codes{};
    codes.fill(static_cast<std::uint8_t>(rules::chart.size()));
    forEachRepetition(
        [&codes](const RepeatedRanks& ranks) { codes[ranks.shapeOf()] = ranks.code(); });
    return codes;
}

inline constexpr CodeOfRankSet ranksOnce = codesOfRankSets(codeOfRanks);
inline constexpr CodeOfRankSet oneSuitDealt = codesOfOneSuit(false);
inline constexpr CodeOfRankSet oneSuitFinal = codesOfOneSuit(true);
inline constexpr CodeOfShape repeatedRanks = codesOfShapes();

// The shape is all that the chart needs to know about repeated ranks.
static_assert([] {
    bool same = true;
    forEachRepetition([&same](const RepeatedRanks& ranks) {
        same = same && repeatedRanks[ranks.shapeOf()] == ranks.code();
    });
    return same;
}());

} // namespace quillet::tables
