#pragma once

#include <functional>

namespace quillet::odds
{

// Called with the share of the work done, 0 to 1.
using WorkProgress = std::function<void(double)>;

// Work of more additions would take more than some minutes and is refused.
inline constexpr double maxSteps = 3e12;

} // namespace quillet::odds
