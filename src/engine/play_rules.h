#pragma once

#include "engine/card.h"
#include "engine/hand_evaluation.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

// The rows of the strategy chart as rules: what a hand must contain for each. Everything else that
// classifies hands is derived from them.
namespace quillet::rules
{

constexpr bool isHigh(int rank)
{
    return rank == 1 || (rank >= 11 && rank <= 13);
}
constexpr bool isRoyal(int rank)
{
    return isHigh(rank) || rank == 10;
}
constexpr bool isFace(int rank)
{
    return rank >= 11 && rank <= 13;
}

struct RankAndSuit {
    int rank = 0;
    int suit = 0;
};

// Five cards in ascending order of rank, cards of equal rank in the order they came in.
using SortedCards = std::array<RankAndSuit, 5>;

constexpr SortedCards sortedByRank(std::span<const Card, 5> cards)
{
    SortedCards sorted;
    auto end = sorted.begin();
    for (const Card& card : cards) {
        auto place = end++;
        for (; place != sorted.begin() && (place - 1)->rank > card.rank; --place)
            *place = *(place - 1);
        *place = {card.rank, card.suit};
    }
    return sorted;
}

// Facts about the ranks of a hand, whatever its suits.
struct RankFacts {
    bool fourAlike = false; // of the thirteen real ranks
    bool threeAlike = false;
    int pairs = 0;
    bool highPair = false;
    bool lowPair = false;
    int highCards = 0;

    bool straight = false;
    bool tenToAce = false;     // the one straight in which the ace is high
    bool openStraight = false; // four cards in a run with room at both ends

    constexpr explicit RankFacts(const SortedCards& cards)
    {
        const RankAndSuit* card = cards.data();
        const RankAndSuit* const end = card + cards.size();
        while (card != end) {
            const int rank = card->rank;
            int alike = 0;
            for (; card != end && card->rank == rank; ++card)
                ++alike;
            fourAlike |= alike == 4 && rank >= 1 && rank <= 13;
            threeAlike |= alike == 3;
            pairs += alike == 2;
            highPair |= alike == 2 && isHigh(rank);
            lowPair |= alike == 2 && rank >= 1 && rank <= 10;
            highCards += isHigh(rank) ? alike : 0;
        }
        lookForRuns(cards);
    }

private:
    constexpr void lookForRuns(const SortedCards& cards)
    {
        const auto& [lowest, second, third, fourth, highest] = cards;
        const bool middle = third.rank == second.rank + 1 && fourth.rank == third.rank + 1;
        const bool fourLowest = middle && second.rank == lowest.rank + 1;
        const bool fourHighest = middle && highest.rank == fourth.rank + 1;
        tenToAce = fourHighest && lowest.rank == 1 && second.rank == 10;
        straight = (fourLowest && fourHighest) || tenToAce;
        openStraight = (fourLowest && lowest.rank != 1) || fourHighest;
    }
};

// Facts about the cards of one suit.
struct SuitFacts {
    int cards = 0;
    int royalCards = 0;
    int highCards = 0;
    bool run = true; // consecutive ranks, the ace low
    bool tenWithFace = false;

    constexpr SuitFacts(const SortedCards& hand, int suit)
    {
        int below = 0;
        bool ten = false;
        for (const RankAndSuit& card : hand) {
            if (card.suit != suit)
                continue;
            run &= cards == 0 || card.rank == below + 1;
            below = card.rank;
            ++cards;
            royalCards += isRoyal(card.rank);
            highCards += isHigh(card.rank);
            ten |= card.rank == 10;
            tenWithFace |= ten && isFace(card.rank);
        }
    }
};

// All facts that the chart depends on.
struct HandFacts : RankFacts {
    bool flush = false;
    int suitedRun = 0;    // the cards of the longest suit whose cards are one run
    int suitedRoyals = 0; // the most royal cards of one suit
    bool fourSuited = false;
    bool twoHighSuited = false;
    bool tenWithFace = false;

    // The facts of the ranks alone.
    constexpr explicit HandFacts(const RankFacts& ranks) : RankFacts(ranks) {}

    constexpr explicit HandFacts(const SortedCards& hand) : RankFacts(hand)
    {
        const RankAndSuit* previous = nullptr;
        for (const RankAndSuit& card : hand) {
            const bool seen = previous != nullptr && previous->suit == card.suit;
            previous = &card;
            if (seen)
                continue;
            const SuitFacts suit(hand, card.suit);
            const bool realSuit = card.suit >= 0 && card.suit <= 3;
            flush |= suit.cards == 5;
            suitedRun = suit.run ? std::max(suitedRun, suit.cards) : suitedRun;
            suitedRoyals = std::max(suitedRoyals, suit.royalCards);
            fourSuited |= suit.cards == 4 && realSuit;
            twoHighSuited |= suit.highCards >= 2 && realSuit;
            tenWithFace |= suit.tenWithFace;
        }
    }
};

enum class Tested { always, beforeTheDrawOnly };

struct PlayRule {
    std::string_view name;
    std::int16_t cardsKept;
    bool (*isContainedIn)(const HandFacts&);
    Tested tested = Tested::always;
};

// The chart, best play first. A hand's play code is the number of the first row that it
// contains, counted from 1. Two draws are above paying hands. They are left out once the hand is
// final, so that it is classed by what it pays.
inline constexpr std::array<PlayRule, playCodeCount> chart{{
    {"royal", 5, [](const HandFacts& hand) { return hand.flush && hand.tenToAce; }},
    {"straight flush", 5, [](const HandFacts& hand) { return hand.suitedRun == 5; }},
    {"4 of a kind", 4, [](const HandFacts& hand) { return hand.fourAlike; }},
    {"full house", 5, [](const HandFacts& hand) { return hand.threeAlike && hand.pairs == 1; }},
    {"4 to a royal", 4, [](const HandFacts& hand) { return hand.suitedRoyals >= 4; },
     Tested::beforeTheDrawOnly},
    {"flush", 5, [](const HandFacts& hand) { return hand.flush; }},
    {"straight", 5, [](const HandFacts& hand) { return hand.straight; }},
    {"3 of a kind", 3, [](const HandFacts& hand) { return hand.threeAlike; }},
    {"4 to a straight flush, no gap", 4, [](const HandFacts& hand) { return hand.suitedRun == 4; },
     Tested::beforeTheDrawOnly},
    {"2 pair", 4, [](const HandFacts& hand) { return hand.pairs == 2; }},
    {"high pair", 2, [](const HandFacts& hand) { return hand.highPair; }},
    {"3 to a royal", 3, [](const HandFacts& hand) { return hand.suitedRoyals >= 3; }},
    {"4 to a flush", 4, [](const HandFacts& hand) { return hand.fourSuited; }},
    {"low pair", 2, [](const HandFacts& hand) { return hand.lowPair; }},
    {"4 to an outside straight", 4, [](const HandFacts& hand) { return hand.openStraight; }},
    {"2 high, suited", 2, [](const HandFacts& hand) { return hand.twoHighSuited; }},
    {"3 to a straight flush, no gap", 3, [](const HandFacts& hand) { return hand.suitedRun == 3; }},
    {"2 high", 2, [](const HandFacts& hand) { return hand.highCards >= 2; }},
    {"10 and face, suited", 2, [](const HandFacts& hand) { return hand.tenWithFace; }},
    {"1 high", 1, [](const HandFacts& hand) { return hand.highCards >= 1; }},
    {"nothing", 0, [](const HandFacts&) { return true; }},
}};

constexpr std::int16_t playCode(const HandFacts& hand, bool finalHand)
{
    std::int16_t code = 1;
    for (const PlayRule& row : chart) {
        const bool tested = row.tested == Tested::always || !finalHand;
        if (tested && row.isContainedIn(hand))
            break;
        ++code;
    }
    return code;
}

// The play code by the rules themselves, right for any ranks and suits.
constexpr std::int16_t playCode(std::span<const Card, 5> cards, bool finalHand)
{
    return playCode(HandFacts(sortedByRank(cards)), finalHand);
}

} // namespace quillet::rules
