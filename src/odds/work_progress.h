#pragma once

#include <functional>

namespace quillet::odds
{

// Called with the share of the work done, 0 to 1.
using WorkProgress = std::function<void(double)>;

// More additions than this are refused, since they would take more than some minutes.
inline constexpr double maxSteps = 3e12;

} // namespace quillet::odds
