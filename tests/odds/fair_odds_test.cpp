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

// The losses come from the worth of holds, the returns from counted outcomes.
TEST(FairOdds, rowsAddUpToTheWholeLoss)
{
    std::int64_t deals = 0;
    for (const RowOdds& row : odds().rows)
        deals += row.deals;
    EXPECT_EQ(deals, FairOdds::deals);
    for (const Strategy strategy : allStrategies) {
        Fraction loss;
        for (const RowOdds& row : odds().rows)
            loss = loss + row.loss[static_cast<std::size_t>(strategy)];
        EXPECT_EQ(loss, odds().returnOf(Strategy::perfect) - odds().returnOf(strategy));
    }
}

} // namespace quillet::test
