#include "engine/pay_table.h"
#include "odds/fair_odds.h"

#include <gtest/gtest.h>

namespace quillet::test
{

namespace
{

const FairOdds& odds()
{
    static const FairOdds theOdds = fairOdds();
    return theOdds;
}

constexpr std::array allStrategies{Strategy::perfect, Strategy::chartBest, Strategy::chartAverage,
                                   Strategy::chartWorst};

} // namespace

// Both figures have been published for this pay table again and again.
TEST(FairOdds, perfectPlayComesOutAsPublished)
{
    EXPECT_EQ((odds().returnOf(Strategy::perfect) * 100).decimals(4), "99.5439");
    const Fraction& royal = odds().chanceOf(Strategy::perfect, 1);
    EXPECT_EQ(Fraction(royal.denominator(), royal.numerator()).decimals(2), "40390.55");
}

TEST(FairOdds, chancesAddUpToTheReturn)
{
    for (const Strategy strategy : allStrategies) {
        Fraction chances;
        Fraction credits;
        for (std::size_t outcome = 0; outcome < outcomes; ++outcome) {
            chances = chances + odds().chanceOf(strategy, outcome);
            credits = credits + odds().chanceOf(strategy, outcome) * payOf(outcome);
        }
        EXPECT_EQ(chances, Fraction(1, 1));
        EXPECT_EQ(credits / wager, odds().returnOf(strategy));
    }
}

} // namespace quillet::test
