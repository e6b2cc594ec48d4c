#include "platform/event_clock.h"

#include <chrono>

namespace quillet
{

namespace
{

template <typename Duration>
Duration now()
{
    return std::chrono::duration_cast<Duration>(
        std::chrono::steady_clock::now().time_since_epoch());
}

} // namespace

std::int64_t EventClock::milliseconds()
{
    return now<std::chrono::milliseconds>().count();
}

double EventClock::seconds()
{
    return now<std::chrono::duration<double>>().count();
}

} // namespace quillet
