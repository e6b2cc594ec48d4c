#include "table/animation_speed.h"

#include "table/counting_loop.h"

#include <algorithm>
#include <cmath>

namespace quillet
{

std::int32_t animationDelayFor(int scrollValue)
{
    constexpr int middle = 500;
    if (scrollValue >= middle)
        return fastest - scrollValue;
    const double slower = (middle - scrollValue) / 100.0 * 1000.0;
    return static_cast<std::int32_t>(std::nearbyint(slower + (fastest - scrollValue)));
}

std::int16_t scrollValueFor(std::int32_t flightDelay)
{
    if (flightDelay >= 0 && flightDelay <= 500)
        return static_cast<std::int16_t>(fastest - flightDelay);
    return flightDelay >= 501 && flightDelay <= 750 ? 400 : 250;
}

std::int32_t effectiveDelay(std::int32_t storedDelay)
{
    return storedDelay <= maxDelay ? std::min(storedDelay, animationDelayFor(slowest))
                                   : storedDelay;
}

} // namespace quillet
