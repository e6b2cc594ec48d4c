#include "table/delay_calibration.h"

#include <gtest/gtest.h>

#include <map>
#include <vector>

namespace quillet::test
{

namespace
{

// A machine on which the named rounds take a share more or less than their cost.
struct Machine {
    RoundCost cost;
    std::map<std::int32_t, double> disturbed = {};
    double patience = 100.0; // seconds for all rounds
    std::vector<std::int32_t> measured = {};
    double spent = 0.0;

    std::optional<double> operator()(std::int32_t delay)
    {
        if (spent >= patience)
            return std::nullopt;
        measured.push_back(delay);
        const double took = cost.seconds + cost.secondsPerUnit * delay;
        spent += took;
        return disturbed.contains(delay) ? took * disturbed[delay] : took;
    }
};

std::int32_t flightDelay(Machine& machine, double estimate = 1.0)
{
    std::int32_t delay = 0;
    calibrateFlight(delay, {machine.cost.seconds, machine.cost.secondsPerUnit * estimate},
                    std::ref(machine));
    return delay;
}

constexpr RoundCost usual{0.01, 0.00131};

} // namespace

TEST(DelayCalibration, theSmallestTenThatFillsTheRound)
{
    Machine machine{usual};
    EXPECT_EQ(flightDelay(machine), 300);
    EXPECT_EQ(machine.measured, (std::vector{300, 290})) << "the deciding rounds and no others";
    Machine slow{{0.45, 0.001}};
    EXPECT_EQ(flightDelay(slow), 0);
}

TEST(DelayCalibration, aWrongEstimateCostsARoundAndDoesNotChangeTheResult)
{
    for (const double error : {0.3, 0.5, 0.9, 1.1, 2.0, 20.0}) {
        Machine machine{usual};
        EXPECT_EQ(flightDelay(machine, error), 300) << error;
        EXPECT_LE(machine.spent, error < 0.5 ? 2.2 : 1.6) << "seconds, at " << error;
    }
    // Rounds that contradict each other also end.
    Machine nervous{usual, {{300, 0.9}, {310, 0.9}, {320, 0.9}, {330, 1.2}, {340, 1.2}}};
    EXPECT_NEAR(flightDelay(nervous), 330, 10);
    EXPECT_LE(nervous.measured.size(), 6U);
}

TEST(DelayCalibration, withoutTimeTheLikeliestDelayIsTaken)
{
    for (const double estimate : {0.7, 1.0}) {
        Machine one{usual, {}, 0.1};
        EXPECT_EQ(flightDelay(one, estimate), 300) << "one round tells the cost of a step";
    }
    Machine none{usual, {}, 0.0};
    EXPECT_EQ(flightDelay(none), 300);
    std::int32_t banner = 0;
    calibrateBanner(banner, {0.0, 0.001}, std::ref(none));
    EXPECT_EQ(banner, 310);
}

TEST(DelayCalibration, theBannerHasTwoThresholds)
{
    // After a round of 0.3 to 0.5 s, the delay rises once more.
    for (const auto& [stored, calibrated] :
         {std::pair{0, 310}, {-25, 315}, {400, 410}, {500, 500}, {600, 600}}) {
        Machine machine{{0.0, 0.001}};
        std::int32_t delay = stored;
        calibrateBanner(delay, machine.cost, std::ref(machine));
        EXPECT_EQ(delay, calibrated) << stored;
        EXPECT_LE(machine.spent, 0.7);
    }
}

} // namespace quillet::test
