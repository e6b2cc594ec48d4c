#include "odds/bad_input.h"
#include "odds/ruin.h"
#include "odds/sitting.h"
#include "odds/tail_bound.h"
#include "tests/kit/held_cards.h"

#include <gmock/gmock.h>

#include <limits>
#include <map>
#include <numeric>

namespace quillet::test
{

using namespace odds;

namespace
{

constexpr std::int64_t endless = std::numeric_limits<std::int64_t>::max();

Draws perfectDraws(const HeldCards& cards = heldCards())
{
    return drawsOf(cards, {[](const DealtHand& hand) { return hand.bestHold; }})[0];
}

// The credits after some rounds, round by round. They stay when they are too few for a round, or
// above `safe`.
std::map<std::int64_t, double> directly(const Round& round, int rounds, std::int64_t bankroll,
                                        std::int64_t safe = endless)
{
    std::map<std::int64_t, double> now{{bankroll, 1.0}};
    for (int left = rounds; left > 0; --left) {
        std::map<std::int64_t, double> next;
        for (const auto& [credits, chance] : now) {
            if (credits < round.cost || credits > safe)
                next[credits] += chance;
            else
                for (const auto& [win, share] : round.wins)
                    next[credits - round.cost + win] += chance * share;
        }
        now = next;
    }
    return now;
}

double ruinedDirectly(const Round& round, int rounds, std::int64_t bankroll)
{
    double ruined = 0;
    for (const auto& [credits, chance] : directly(round, rounds, bankroll, rounds * round.cost * 2))
        ruined += credits < round.cost ? chance : 0;
    return ruined;
}

} // namespace

TEST(Round, isWhatADirectSumOfItsLinesGives)
{
    const Draws draws = perfectDraws();
    EXPECT_EQ(draws.size(), 1279U);
    OutcomeChances chances;
    std::map<std::int64_t, double> three;
    for (const Draw& draw : draws) {
        for (std::size_t i = 0; i < 1000; ++i) {
            double share = draw.share();
            std::int64_t win = 0;
            for (const std::size_t outcome : {i / 100, i / 10 % 10, i % 10}) {
                share *= draw.chances[outcome].value();
                win += trainersPays()[outcome];
            }
            three[win] += share;
        }
        for (std::size_t outcome = 0; outcome < outcomeCount; ++outcome)
            chances[outcome] =
                chances[outcome] + draw.chances[outcome] * draw.deals / FairOdds::deals;
    }
    EXPECT_EQ(chances, fairOdds(heldCards()).chances);
    const Round round = roundOf(draws, trainersPays(), 3);
    EXPECT_EQ(round.wins.size(), three.size());
    for (const auto& [win, chance] : round.wins)
        EXPECT_NEAR(chance, three[win], 1e-13) << win;
    // The variance of a line and the covariance of two are known.
    const Draws cheaper = perfectDraws(HeldCards(parsePays("8/5")));
    for (const std::int64_t lines : {1, 3, 10}) {
        const auto n = static_cast<double>(lines);
        EXPECT_NEAR(roundOf(draws, trainersPays(), lines).variance(),
                    19.514676 * n + 1.966389 * n * (n - 1), 1e-6 * n * n);
        EXPECT_NEAR(roundOf(cheaper, parsePays("8/5"), lines).variance(),
                    19.323259 * n + 1.903060 * n * (n - 1), 1e-6 * n * n);
    }
}

TEST(Sitting, isWhatADirectSumGives)
{
    const Draws draws = perfectDraws();
    const Pays odd{0, 4001, 250, 125, 45, 30, 22, 13, 10, 5}; // nothing in common
    for (const Round& round :
         {roundOf(draws, trainersPays()), roundOf(draws, odd), roundOf(draws, trainersPays(), 3)}) {
        for (const int rounds : {1, 2, 4}) {
            constexpr std::int64_t plenty = 1'000'000;
            const Sitting sitting(round, rounds);
            double above = 1;
            for (const auto& [credits, chance] : directly(round, rounds, plenty)) {
                EXPECT_NEAR(sitting.chanceOf(credits - plenty, credits - plenty), chance,
                            sittingBound);
                above -= chance;
                EXPECT_NEAR(sitting.chanceOf(credits - plenty + 1, endless), above, sittingBound);
            }
        }
    }
}

TEST(Ruin, isWhatAllPathsGive)
{
    const Draws draws = perfectDraws();
    const Pays odd{0, 4001, 250, 125, 45, 30, 22, 13, 10, 5};
    for (const Round& round :
         {roundOf(draws, trainersPays()), roundOf(draws, odd), roundOf(draws, trainersPays(), 3),
          roundOf(draws, trainersPays(), 10)}) {
        for (const int rounds : {1, 2, 15}) {
            const Ruin ruin(round, rounds);
            const std::int64_t few = 2 * round.cost + 2, enough = ruin.bankrollFor(0.05);
            EXPECT_NEAR(ruin.chance(few), ruinedDirectly(round, rounds, few), sittingBound);
            EXPECT_LE(ruinedDirectly(round, rounds, enough), 0.05);
            EXPECT_GT(ruinedDirectly(round, rounds, enough - std::gcd(round.unit, round.cost)),
                      0.05);
        }
    }
}

TEST(Sitting, comesOutAsKnown)
{
    const Draws draws = perfectDraws();
    const Round one = roundOf(draws, trainersPays());
    const auto percent = [&one](std::int64_t hands, std::int64_t least, std::int64_t most) {
        return 100 * Sitting(one, hands).chanceOf(least, most);
    };
    EXPECT_NEAR(percent(600, -endless, -1), 62.62, 5e-3);
    EXPECT_NEAR(percent(600, 0, 0), 0.76, 5e-3);
    EXPECT_NEAR(percent(600, 1, endless), 36.62, 5e-3);
    EXPECT_NEAR(percent(2400, 1, endless), 30.35, 5e-3);
    EXPECT_NEAR(percent(1'000'000, -endless, endless), 100, 100 * sittingBound);
    EXPECT_NEAR(100 * Ruin(one, 1000).chance(500), 16.29, 5e-3);
    EXPECT_EQ(Ruin(one, 100).chance(500'000), 0);
    EXPECT_THROW(Ruin(one, 10'000'000), BadInput) << "an hour";
    EXPECT_EQ(Ruin(one, 10'000'000, 4).chance(4, 1), 1) << "ruined before the first hand";
    EXPECT_EQ(Ruin(one, 10'000'000, 1'000'000'000).chance(1'000'000'000), 0);
    EXPECT_EQ(Ruin(one, 100, 50).chance(50, 3), Ruin(one, 100).chance(50, 3));
    const Round lost{.unit = 5, .wins = {{0, 0.9}, {5, 0.1}}};
    EXPECT_NEAR(Ruin(lost, 100'000, 500).chance(500, 1), 1, 1e-11) << "in a moment";
    const Pays high = parsePays("99999 998 9 9 9 9 9 9 9");
    EXPECT_THROW(Sitting(roundOf(draws, high), 10'000'000), BadInput);
    EXPECT_EQ(Sitting(one, 1).quantile(0.5), -5);
    EXPECT_EQ(Sitting(one, 1).quantile(0.6), 0);
    EXPECT_NEAR(chanceOfAtLeastOne(draws, 1, 1, 600), 0.014745, 1e-6);
}

} // namespace quillet::test
