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

// Returns the given draws, and records the order of the calls.
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
    // Just under 1/52 is still place 0, the next number is place 1; the last draws reach the back.
    std::vector<double> draws{std::nextafter(1.0 / 52, 0.0), 1.0 / 52, std::nextafter(1.0, 0.0)};
    for (int i = 3; i < 52; ++i)
        draws.push_back((i * 37 % 52 + 0.5) / 52);
    std::string reseedBeforeEveryDraw;
    PokerDeck expected = buildDeck();
    for (std::size_t i = 0; i < 52; ++i) {
        reseedBeforeEveryDraw += "rn";
        const std::size_t partner = i < 2 ? i : i == 2 ? 51 : i * 37 % 52;
        std::swap(expected[i], expected[partner]);
    }
    ScriptedRandom random(draws);
    EXPECT_EQ(shuffledDeck(random), expected);
    EXPECT_EQ(random.asked, reseedBeforeEveryDraw);
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

TEST(BlendingRandom, reseedsWithinOneTickRepeatNoDrawAndSpreadEvenly)
{
    BlendingRandom random([] { return std::uint64_t{0}; }, 9);
    BlendingRandom later([] { return std::uint64_t{1}; }, 9);
    std::array<int, 52> drawn{};
    std::set<double> draws;
    for (int i = 0; i < 52000; ++i) {
        random.reseed();
        later.reseed();
        const double draw = random.next();
        EXPECT_NE(draw, later.next()) << "the clock counts";
        draws.insert(draw);
        ++drawn.at(static_cast<std::size_t>(draw * 52));
    }
    EXPECT_GT(draws.size(), 51900U);
    double chiSquare = 0;
    for (const int times : drawn)
        chiSquare += (times - 1000) * (times - 1000) / 1000.0;
    // Of ten thousand seeds about one would miss either limit.
    EXPECT_LT(chiSquare, 98);
    EXPECT_GT(chiSquare, 21);
}

} // namespace quillet::test
