#pragma once

#include <cstdint>

namespace quillet
{

// Positions of the speed slider.
inline constexpr int slowest = 0;
inline constexpr int fastest = 1000;

// The animation delay at a slider position, in thousands of loop passes per frame.
[[nodiscard]] std::int32_t animationDelayFor(int scrollValue);

// The slider position for a calibrated delay.
[[nodiscard]] std::int16_t scrollValueFor(std::int32_t flightDelay);

// The stored delay, but at most the slider's max. A larger one, from an edited settings file, would
// block the game for hours, as a flight handles no events. Delays beyond maxDelay are returned
// unchanged; counting throws for them.
[[nodiscard]] std::int32_t effectiveDelay(std::int32_t storedDelay);

} // namespace quillet
