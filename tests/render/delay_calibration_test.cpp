#include "render/delay_calibration.h"

#include <gtest/gtest.h>

#include <vector>

namespace quillet::test
{

namespace
{

// A machine whose rounds take exactly what they cost.
struct Machine {
    RoundCost cost;
    std::vector<std::int32_t> measured;

    double operator()(std::int32_t delay)
    {
        measured.push_back(delay);
        return cost.seconds + cost.secondsPerUnit * delay;
    }
};

std::int32_t flightDelay(Machine& machine, RoundCost believed)
{
    std::int32_t delay = 0;
    calibrateFlight(delay, believed, std::ref(machine));
    return delay;
}

} // namespace

TEST(DelayCalibration, theSmallestTenThatFillsTheRound)
{
    Machine machine{{0.01, 0.00131}, {}};
    EXPECT_EQ(flightDelay(machine, machine.cost), 300);
    EXPECT_LE(machine.measured.size(), 3U) << "certain rounds are skipped";

    Machine slow{{0.45, 0.001}, {}};
    EXPECT_EQ(flightDelay(slow, slow.cost), 0);
}

TEST(DelayCalibration, aWrongEstimateDoesNotChangeTheResult)
{
    for (const double error : {0.5, 0.9, 1.1, 3.0}) {
        Machine machine{{0.01, 0.00131}, {}};
        EXPECT_EQ(flightDelay(machine, {0.0, 0.00131 * error}), 300) << error;
    }
}

TEST(DelayCalibration, theBannerHasTwoThresholds)
{
    Machine machine{{0.0, 0.001}, {}};
    std::int32_t delay = 0;
    calibrateBanner(delay, machine.cost, std::ref(machine));
    EXPECT_EQ(delay, 310) << "a round of 0.3 s rises once more, but is the last";

    delay = 600;
    calibrateBanner(delay, machine.cost, std::ref(machine));
    EXPECT_EQ(delay, 600);
}

TEST(DelayCalibration, theSliderFollowsTheDelay)
{
    for (const auto& [delay, value] :
         {std::pair{0, 1000}, {500, 500}, {510, 400}, {750, 400}, {760, 250}})
        EXPECT_EQ(scrollValueFor(delay), value) << delay;
}

} // namespace quillet::test
