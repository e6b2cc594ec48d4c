#pragma once

#include <cstdint>

namespace quillet
{

// Two times that never go back.
class Clock
{
public:
    virtual ~Clock() = default;
    // Since the program's start.
    [[nodiscard]] virtual std::int64_t milliseconds() const = 0;
    // Processor time of the calling thread.
    [[nodiscard]] virtual double processorSeconds() const = 0;
};

} // namespace quillet
