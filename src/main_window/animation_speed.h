#pragma once

#include <cstdint>

namespace quillet
{

// Positions of the speed slider.
inline constexpr int slowest = 0;
inline constexpr int fastest = 1000;

// The animation delay that a slider position stands for, in thousands of loop passes a frame.
[[nodiscard]] std::int32_t animationDelayFor(int scrollValue);

} // namespace quillet
