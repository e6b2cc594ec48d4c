#include "table/counting_loop.h"

#include "faults/run_time_error.h"

#include <limits>

namespace quillet
{

void countingLoop(std::int32_t delay)
{
    const std::int64_t passes = std::int64_t{delay} * 1000;
    if (passes > std::numeric_limits<std::int32_t>::max() ||
        passes < std::numeric_limits<std::int32_t>::min())
        throw overflowError();

    // The time of a bare counter is too short and differs too much between processors for the speed
    // slider. Eight dependent multiply-adds take about the same time everywhere.
    static volatile std::uint64_t sink = 1;
    std::uint64_t value = sink;
    for (std::int64_t pass = 1; pass <= passes; ++pass) {
        for (int i = 0; i < 8; ++i)
            value = value * 6364136223846793005U + 1442695040888963407U;
    }
    sink = value;
}

} // namespace quillet
