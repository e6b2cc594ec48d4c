#include "tests/charts/direct_count.h"

#include <algorithm>
#include <bit>

namespace quillet::charts::test
{

namespace
{

using RankSet = unsigned; // bit 0 for the ace

constexpr RankSet allRanks = 8191;
constexpr RankSet royalRanks = 0b1111000000001;
constexpr RankSet highRanks = 0b1110000000001;

enum : std::size_t {
    nothing,
    royal,
    straightFlush,
    fours,
    fullHouse,
    flush,
    straight,
    threes,
    twoPair,
    highPair
};

int waysToChoose(int some, int of)
{
    int ways = 1;
    for (int i = 0; i < some; ++i)
        ways = ways * (of - i) / (i + 1);
    return ways;
}

constexpr std::array<RankSet, 10> straights{31,      31 << 1, 31 << 2, 31 << 3, 31 << 4,
                                            31 << 5, 31 << 6, 31 << 7, 31 << 8, royalRanks};

bool isStraight(RankSet ranks)
{
    return std::ranges::find(straights, ranks) != straights.end();
}

std::size_t outcomeOfRanks(const Ranks& hand)
{
    const auto& [one, two, three, four] = hand.ofAtLeast;
    if (four != 0)
        return fours;
    if (three != 0)
        return two != three ? fullHouse : threes;
    if (std::popcount(two) == 2)
        return twoPair;
    if (two != 0)
        return (two & highRanks) != 0 ? highPair : nothing;
    return isStraight(one) ? straight : nothing;
}

std::size_t outcomeOfSuited(RankSet ranks)
{
    if (!isStraight(ranks))
        return flush;
    return ranks == royalRanks ? royal : straightFlush;
}

void drawOneByOne(std::vector<Card> hand, std::span<const Card> left, OutcomeCounts& draws)
{
    if (hand.size() < 5) {
        hand.emplace_back();
        for (std::size_t i = 0; i < left.size(); ++i) {
            hand.back() = left[i];
            drawOneByOne(hand, left.subspan(i + 1), draws);
        }
        return;
    }
    const Ranks ranks(hand);
    const bool suited = std::ranges::all_of(
        hand, [&hand](const Card& card) { return card.suit == hand.front().suit; });
    ++draws[suited ? outcomeOfSuited(ranks.ofAtLeast[0]) : outcomeOfRanks(ranks)];
}

// Adds the draws of `left` cards from this rank on.
void drawRanks(int rank, int left, int ways, const Ranks& hand, const Ranks& dealt,
               OutcomeCounts& draws)
{
    if (left == 0) {
        draws[outcomeOfRanks(hand)] += ways;
        return;
    }
    for (; rank < 13; ++rank) {
        int inDeck = 4;
        for (const RankSet set : dealt.ofAtLeast)
            inDeck -= (set >> rank & 1U) != 0 ? 1 : 0;
        Ranks more = hand;
        for (int drawn = 1; drawn <= std::min(left, inDeck); ++drawn) {
            more.add(rank);
            drawRanks(rank + 1, left - drawn, ways * waysToChoose(drawn, inDeck), more, dealt,
                      draws);
        }
    }
}

// Moves the draws that end in one suit from what their ranks come to.
void drawSuited(RankSet held, RankSet inDeck, OutcomeCounts& draws)
{
    int plain = waysToChoose(5 - std::popcount(held), std::popcount(inDeck));
    for (const RankSet ranks : straights) {
        if ((held & ~ranks) == 0 && (ranks & ~held & ~inDeck) == 0) {
            --draws[straight];
            ++draws[outcomeOfSuited(ranks)];
            --plain;
        }
    }
    draws[nothing] -= plain;
    draws[flush] += plain;
}

SuitSets suitsOf(const Cards5& cards, Hold hold)
{
    SuitSets sets{};
    for (const Card& card : heldOf(cards, hold))
        sets[static_cast<std::size_t>(card.suit)] |= 1U << (card.rank - 1);
    return sets;
}

} // namespace

std::vector<Card> heldOf(const Cards5& cards, Hold hold)
{
    std::vector<Card> held;
    held.reserve(cards.size());
    for (std::size_t i = 0; i < cards.size(); ++i) {
        if ((hold >> i & 1U) != 0)
            held.push_back(cards[i]);
    }
    return held;
}

OutcomeCounts drawsOneByOne(const std::vector<Card>& held, std::span<const Card> left)
{
    OutcomeCounts draws{};
    drawOneByOne(held, left, draws);
    return draws;
}

Ranks::Ranks(std::span<const Card> cards)
{
    for (const Card& card : cards)
        add(card.rank - 1);
}

void Ranks::add(int rank)
{
    for (RankSet& set : ofAtLeast) {
        if ((set >> rank & 1U) == 0) {
            set |= 1U << rank;
            return;
        }
    }
}

std::array<OutcomeCounts, holds> DirectCount::draws(const Cards5& cards)
{
    if (const Ranks dealt(cards); dealt != m_dealt) {
        m_dealt = dealt;
        m_byRanks = {};
        for (Hold hold = 0; hold < holds; ++hold)
            drawRanks(0, 5 - std::popcount(hold), 1, Ranks(heldOf(cards, hold)), dealt,
                      m_byRanks[hold]);
    }
    std::array<OutcomeCounts, holds> draws = m_byRanks;
    const SuitSets dealt = suitsOf(cards, holdAll);
    for (Hold hold = 0; hold < holds; ++hold) {
        const SuitSets held = suitsOf(cards, hold);
        for (std::size_t suit = 0; suit < held.size(); ++suit) {
            if (std::popcount(held[suit]) == std::popcount(hold))
                drawSuited(held[suit], allRanks & ~dealt[suit], draws[hold]);
        }
    }
    return draws;
}

void forEachDirectDeal(const std::function<void(const Cards5&, int members)>& visit)
{
    std::array<std::int16_t, 5> ranks{1, 1, 1, 1, 1};
    for (;;) {
        for (int suits = 0; suits < 1024; ++suits) {
            Cards5 cards{};
            std::array<unsigned, 4> sets{};
            bool ascending = true;
            for (std::size_t i = 0; i < 5; ++i) {
                cards[i].rank = ranks[i];
                cards[i].suit = static_cast<std::int16_t>(suits >> (2 * i) & 3);
                ascending = ascending && (i == 0 || ranks[i - 1] < ranks[i] ||
                                          cards[i - 1].suit < cards[i].suit);
                sets[static_cast<std::size_t>(cards[i].suit)] |= 1U << ranks[i];
            }
            if (!ascending || !std::ranges::is_sorted(sets))
                continue;
            int members = 1;
            while (std::ranges::next_permutation(sets).found)
                ++members;
            visit(cards, members);
        }
        auto next = std::ranges::find_if(ranks.rbegin(), ranks.rend(),
                                         [](std::int16_t rank) { return rank < 13; });
        if (next == ranks.rend())
            return;
        const auto rank = static_cast<std::int16_t>(*next + 1);
        std::fill(ranks.rbegin(), next + 1, rank);
    }
}

} // namespace quillet::charts::test
