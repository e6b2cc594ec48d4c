#pragma once

#include <cstdint>
#include <functional>

namespace quillet
{

// Waits this many milliseconds and handles every event meanwhile: any handler may have run
// before this returns. 0 or less returns at once and handles nothing. When cutShort is given, it
// is called after each turn of the events, and true ends the wait. Needs the application object.
void shortDelay(std::int32_t delayTime, const std::function<bool()>& cutShort = {});

} // namespace quillet
