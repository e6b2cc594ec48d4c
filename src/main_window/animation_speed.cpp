#include "main_window/animation_speed.h"

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

} // namespace quillet
