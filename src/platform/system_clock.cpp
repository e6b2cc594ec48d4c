#include "platform/system_clock.h"

#include <chrono>
#include <ctime>

namespace quillet
{

namespace
{

const auto programStart = std::chrono::steady_clock::now();

} // namespace

std::int64_t SystemClock::milliseconds() const
{
    using namespace std::chrono;
    return duration_cast<std::chrono::milliseconds>(steady_clock::now() - programStart).count();
}

double SystemClock::processorSeconds() const
{
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}

} // namespace quillet
