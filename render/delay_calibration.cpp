#include "render/delay_calibration.h"

#include "render/counting_loop.h"

#include <algorithm>
#include <cmath>

namespace quillet
{

namespace
{

constexpr double flightRound = 0.4; // seconds that a round is to take at least
constexpr double bannerRound = 0.3; // below this, the banner is measured again
constexpr double bannerSlow = 0.5;  // below this, the banner's delay still rises
constexpr std::int32_t step = 10;

// A round below this share of its limit will not reach it, whatever the measurement's error.
constexpr double certainShare = 0.97;

// How many steps of the delay can be taken before a round might reach the limit.
std::int32_t certainSteps(const RoundCost& cost, double limit, std::int32_t delay)
{
    const double missing =
        limit * certainShare - cost.seconds - cost.secondsPerUnit * static_cast<double>(delay);
    if (missing <= 0.0 || cost.secondsPerUnit <= 0.0)
        return 0;
    constexpr double most = 100'000; // a broken cost must not overflow the delay
    return static_cast<std::int32_t>(
        std::min(most, std::floor(missing / (cost.secondsPerUnit * step))));
}

} // namespace

void calibrateFlight(std::int32_t& delay, const RoundCost& cost, const MeasureRound& measure)
{
    delay = certainSteps(cost, flightRound, 0) * step;
    double elapsed = measure(delay);
    // The cost may have been taken in a bad moment: the round before the result must be too short.
    while (delay > 0 && elapsed >= flightRound) {
        delay = std::max(0, delay - std::max(step, delay / 200 * step));
        elapsed = measure(delay);
    }
    while (elapsed < flightRound) {
        delay += step;
        elapsed = measure(delay);
    }
}

void calibrateBanner(std::int32_t& delay, const RoundCost& cost, const MeasureRound& measure)
{
    // It starts from a stored value, which may be any: without a pass to count, or with far more
    // than a round can take, the outcome is as certain.
    if (delay < 0 && cost.seconds < bannerRound * certainShare)
        delay %= step;
    if (cost.seconds + cost.secondsPerUnit * delay > 2 * bannerSlow && delay <= longestDelay)
        return;
    delay += certainSteps(cost, bannerRound, delay) * step;
    double elapsed = 0.0;
    do {
        elapsed = measure(delay);
        if (elapsed < bannerSlow)
            delay += step;
    } while (elapsed < bannerRound);
}

std::int16_t scrollValueFor(std::int32_t flightDelay)
{
    if (flightDelay >= 0 && flightDelay <= 500)
        return static_cast<std::int16_t>(1000 - flightDelay);
    return flightDelay >= 501 && flightDelay <= 750 ? 400 : 250;
}

} // namespace quillet
