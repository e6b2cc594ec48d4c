#pragma once

#include <functional>

namespace quillet::odds
{

// Called with the share of the work done, 0 to 1.
using WorkProgress = std::function<void(double)>;

} // namespace quillet::odds
