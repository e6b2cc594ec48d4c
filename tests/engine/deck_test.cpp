#include "engine/deck.h"
#include "engine/random.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>
#include <set>
#include <string>
#include <vector>

namespace quillet::test
{

namespace
{

// Gives the draws it was told to give, and notes in which order it was asked.
class ScriptedRandom : public RandomSource
{
public:
    explicit ScriptedRandom(std::vector<double> draws) : m_draws(std::move(draws)) {}

    void reseed() override { asked += 'r'; }
    double next() override
    {
        asked += 'n';
        return m_draws[m_next++ % m_draws.size()];
    }

    std::string asked;

private:
    std::vector<double> m_draws;
    std::size_t m_next = 0;
};

} // namespace

TEST(Deck, theShuffleIsFiftyTwoExchangesWithAnyPlace)
{
    std::string reseedBeforeEveryDraw;
    for (int i = 0; i < 52; ++i)
        reseedBeforeEveryDraw += "rn";

    ScriptedRandom first({0.0});
    PokerDeck deck{};
    shuffleDeck(deck, first);
    EXPECT_EQ(first.asked, reseedBeforeEveryDraw);
    // Each card in turn goes to the front, and the one that was there takes its place.
    PokerDeck rotated = buildDeck();
    std::rotate(rotated.begin(), rotated.end() - 1, rotated.end());
    EXPECT_EQ(deck, rotated);

    // The same happens at the back.
    ScriptedRandom last({std::nextafter(1.0, 0.0)});
    shuffleDeck(deck, last);
    EXPECT_EQ(deck, rotated);

    // The whole part counts: just under 1/52 is still place 0, the next number is place 1.
    ScriptedRandom edge({std::nextafter(1.0 / 52, 0.0), 1.0 / 52});
    shuffleDeck(deck, edge);
    EXPECT_EQ(deck[0], 50);
    EXPECT_EQ(deck[1], 51);
}

TEST(Deck, theShuffleFollowsItsDraws)
{
    BlendingRandom random([] { return std::uint64_t{5}; }, 1);
    std::vector<double> draws;
    for (int i = 0; i < 52; ++i) {
        random.reseed();
        draws.push_back(random.next());
    }
    PokerDeck expected = buildDeck();
    for (std::size_t i = 0; i < 52; ++i)
        std::swap(expected[i], expected[static_cast<std::size_t>(std::floor(draws[i] * 52))]);

    ScriptedRandom script(draws);
    PokerDeck deck{};
    shuffleDeck(deck, script);
    EXPECT_EQ(deck, expected);
    EXPECT_EQ(std::set<std::int16_t>(deck.begin(), deck.end()).size(), 52U);
}

TEST(Deck, theDealRunsLeftToRightAndRightToLeftInTurn)
{
    bool dealReversed = false;
    EXPECT_EQ(dealOrder(dealReversed), (std::array{0, 1, 2, 3, 4}));
    EXPECT_TRUE(dealReversed);
    EXPECT_EQ(dealOrder(dealReversed), (std::array{4, 3, 2, 1, 0}));
    EXPECT_FALSE(dealReversed);
}

TEST(Deck, everySlotHasItsOwnReplacement)
{
    const PokerDeck deck = buildDeck();
    auto hand = dealHand(deck);
    drawReplacements(hand, deck, {false, true, false, true, false});
    std::array<int, 5> ids{};
    std::ranges::transform(hand, ids.begin(), &Card::cardId);
    EXPECT_EQ(ids, (std::array{5, 1, 7, 3, 9}));
    for (const Card& card : hand)
        EXPECT_EQ(card, makeCard(card.cardId));
}

TEST(BlendingRandom, reseedsWithinOneTickDoNotRepeatADraw)
{
    BlendingRandom random([] { return std::uint64_t{123456}; });
    std::set<double> draws;
    for (int i = 0; i < 1000; ++i) {
        random.reseed();
        draws.insert(random.next());
    }
    EXPECT_EQ(draws.size(), 1000U);
}

TEST(BlendingRandom, theClockAndTheStateBothDecideTheNextDraw)
{
    const auto drawAt = [](std::uint64_t time, std::uint64_t seed) {
        BlendingRandom random([time] { return time; }, seed);
        random.reseed();
        return random.next();
    };
    EXPECT_EQ(drawAt(1, 1), drawAt(1, 1));
    EXPECT_NE(drawAt(1, 1), drawAt(2, 1));
    EXPECT_NE(drawAt(1, 1), drawAt(1, 2));
}

TEST(BlendingRandom, drawsAreSpreadEvenly)
{
    BlendingRandom random([] { return std::uint64_t{0}; }, 9);
    std::array<int, 52> drawn{};
    for (int i = 0; i < 52000; ++i)
        ++drawn.at(static_cast<std::size_t>(random.next() * 52));
    double chiSquare = 0;
    for (const int times : drawn)
        chiSquare += (times - 1000) * (times - 1000) / 1000.0;
    // Of ten thousand seeds about one would miss either limit.
    EXPECT_LT(chiSquare, 98);
    EXPECT_GT(chiSquare, 21);
}

} // namespace quillet::test
