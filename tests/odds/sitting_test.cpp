#include "odds/bad_input.h"
#include "odds/bankroll.h"
#include "odds/sitting.h"
#include "odds/tail_bounds.h"
#include "tests/kit/held_cards.h"

#include <gmock/gmock.h>

#include <limits>
#include <map>

namespace quillet::test
{

using namespace odds;

namespace
{

constexpr std::int64_t endless = std::numeric_limits<std::int64_t>::max();

OneHand perfectHand()
{
    return oneHand(fairOdds(heldCards()).chances, trainersPays());
}

// The net after so many hands, hand by hand; what has come below five credits on the way stays.
std::map<std::int64_t, double> directly(const OneHand& one, int hands, std::int64_t bankroll)
{
    std::map<std::int64_t, double> now{{bankroll, 1.0}};
    for (int hand = 0; hand < hands; ++hand) {
        std::map<std::int64_t, double> next;
        for (const auto& [credits, chance] : now) {
            if (credits < 5)
                next[credits] += chance;
            else
                for (std::size_t outcome = 0; outcome < outcomeCount; ++outcome)
                    next[credits - 5 + one.pays[outcome]] += chance * one.chance[outcome];
        }
        now = next;
    }
    return now;
}

} // namespace

TEST(Sitting, isWhatADirectSumGives)
{
    OneHand odd = perfectHand(); // whose pays have nothing in common
    odd.pays = {0, 4001, 250, 125, 45, 30, 22, 13, 10, 5};
    for (const OneHand& one : {perfectHand(), odd}) {
        for (const int hands : {1, 2, 7}) {
            constexpr std::int64_t plenty = 1'000'000;
            const Sitting sitting(one, hands);
            double above = 1;
            for (const auto& [credits, chance] : directly(one, hands, plenty)) {
                EXPECT_NEAR(sitting.chanceOf(credits - plenty, credits - plenty), chance,
                            sittingBound);
                above -= chance;
                EXPECT_NEAR(sitting.chanceOf(credits - plenty + 1, endless), above, sittingBound);
            }
            double ruined = 0;
            for (const auto& [credits, chance] : directly(one, hands, 12))
                ruined += credits < 5 ? chance : 0;
            EXPECT_NEAR(chancesOfRuin(one, hands, 12).back(), ruined, sittingBound);
        }
    }
}

TEST(Sitting, comesOutAsKnown)
{
    const OneHand one = perfectHand();
    EXPECT_NEAR(one.variance(), 19.5147, 5e-5);
    const auto percent = [&one](std::int64_t hands, std::int64_t least, std::int64_t most) {
        return 100 * Sitting(one, hands).chanceOf(least, most);
    };
    EXPECT_NEAR(percent(600, -endless, -1), 62.62, 5e-3);
    EXPECT_NEAR(percent(600, 0, 0), 0.76, 5e-3);
    EXPECT_NEAR(percent(600, 1, endless), 36.62, 5e-3);
    EXPECT_NEAR(percent(2400, 1, endless), 30.35, 5e-3);
    EXPECT_NEAR(percent(1'000'000, -endless, endless), 100, 100 * sittingBound);
    EXPECT_NEAR(100 * chancesOfRuin(one, 1000, 500).back(), 16.29, 5e-3);
    EXPECT_EQ(chancesOfRuin(one, 100, 500'000).back(), 0);
    EXPECT_EQ(chancesOfRuin(one, 10'000'000, 4).front(), 1) << "at once";
    EXPECT_THROW((void)chancesOfRuin(one, 10'000'000, 500), BadInput) << "an hour";
    EXPECT_THROW(Sitting({one.chance, parsePays("99999 998 9 9 9 9 9 9 9")}, 10'000'000), BadInput);
    EXPECT_EQ(Sitting(one, 1).quantile(0.5), -5);
    EXPECT_EQ(Sitting(one, 1).quantile(0.6), 0);
}

} // namespace quillet::test
