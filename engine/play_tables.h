#pragma once

#include "engine/hand_evaluation.h"
#include "engine/play_rules.h"

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <utility>

// The chart's rules worked out beforehand for every set of ranks. A row looks either at the ranks
// alone or at the cards of one suit alone, so a hand's play code is the least of five: the code
// of its ranks without their suits and the codes of its four suits, each with fillers for the
// rest.
namespace quillet::tables
{

inline constexpr std::size_t rankSets = 1 << 13; // bit 0 stands for the ace, bit 12 for the king

using CodeOfRankSet = std::array<std::uint8_t, rankSets>;

// The ranks of a hand, by suit: bits 0..12 clubs, 16..28 diamonds, and so on.
using SuitLanes = std::uint64_t;

constexpr unsigned lane(SuitLanes lanes, int suit)
{
    return static_cast<std::uint16_t>(lanes >> (16 * suit));
}

// The cards of a set, in one suit and over the fillers.
constexpr rules::SortedCards cardsOfRankSet(std::size_t set)
{
    rules::SortedCards cards;
    int place = 0;
    for (rules::RankAndSuit& card : cards) {
        const Card filler = fillerCard(place++);
        card = {filler.rank, filler.suit};
        if (set != 0)
            card = {std::countr_zero(set) + 1, 0};
        set &= set - 1;
    }
    return cards;
}

// The codes of ranks alone, none of them twice.
constexpr CodeOfRankSet codesOfDifferentRanks()
{
    CodeOfRankSet codes{};
    for (std::size_t set = 0; set < rankSets; ++set) {
        if (std::popcount(set) > 5)
            continue;
        const rules::RankFacts ranks(cardsOfRankSet(set));
        codes[set] = static_cast<std::uint8_t>(rules::playCode(rules::HandFacts(ranks), false));
    }
    return codes;
}

// The codes of the cards of one suit.
constexpr CodeOfRankSet codesOfOneSuit(bool finalHand)
{
    CodeOfRankSet codes{};
    for (std::size_t set = 0; set < rankSets; ++set) {
        if (std::popcount(set) > 5)
            continue;
        const rules::HandFacts hand(cardsOfRankSet(set));
        codes[set] = static_cast<std::uint8_t>(rules::playCode(hand, finalHand));
    }
    return codes;
}

// Which ranks stand at least twice, thrice, four times.
struct Repeats {
    unsigned twice = 0;
    unsigned thrice = 0;
    unsigned fourTimes = 0;

    // Of repeated ranks the rows ask no more than this.
    [[nodiscard]] constexpr std::size_t shape() const
    {
        constexpr unsigned high = 0x1c01; // ace, jack, queen, king
        return (fourTimes != 0 ? 16U : 0U) + (thrice != 0 ? 8U : 0U) +
               ((twice & (twice - 1)) != 0 ? 4U : 0U) + ((twice & high) != 0 ? 2U : 0U) +
               (twice != 0 ? 1U : 0U);
    }
};

using CodeOfShape = std::array<std::uint8_t, 32>;

// Shapes of no hand, and that of a hand without repeats, have the last row's code.
constexpr CodeOfShape codesOfRepeats()
{
    CodeOfShape codes{};
    codes.fill(static_cast<std::uint8_t>(rules::chart.size()));
    const auto enter = [&codes](int rank, int times, int otherRank, int otherTimes) {
        rules::SortedCards cards = cardsOfRankSet(0);
        auto card = cards.begin();
        for (int i = 0; i < times; ++i)
            (card++)->rank = rank;
        for (int i = 0; i < otherTimes; ++i)
            (card++)->rank = otherRank;
        const unsigned bit = 1U << (rank - 1);
        const unsigned otherBit = otherTimes == 2 ? 1U << (otherRank - 1) : 0;
        const Repeats repeats{bit | otherBit, times >= 3 ? bit : 0, times == 4 ? bit : 0};
        const rules::RankFacts ranks(cards);
        codes[repeats.shape()] =
            static_cast<std::uint8_t>(rules::playCode(rules::HandFacts(ranks), false));
    };
    for (const auto& [rank, otherRank] : {std::pair{3, 5}, {3, 11}, {11, 13}}) {
        enter(rank, 2, otherRank, 0);
        enter(rank, 2, otherRank, 2);
        enter(rank, 3, otherRank, 0);
        enter(rank, 3, otherRank, 2);
        enter(rank, 4, otherRank, 0);
    }
    return codes;
}

inline constexpr CodeOfRankSet ranksOnce = codesOfDifferentRanks();
inline constexpr CodeOfRankSet oneSuitDealt = codesOfOneSuit(false);
inline constexpr CodeOfRankSet oneSuitFinal = codesOfOneSuit(true);
inline constexpr CodeOfShape repeatedRanks = codesOfRepeats();

} // namespace quillet::tables
