#pragma once

#include <cstdint>
#include <functional>

namespace quillet
{

// Waits this many milliseconds and handles events meanwhile, so any handler may have run before
// this returns. 0 or less returns at once and handles nothing. cutShort, if given, is called after
// the events of each turn; true ends the wait. Needs the application object.
void shortDelay(std::int32_t delayTime, const std::function<bool()>& cutShort = {});

} // namespace quillet
