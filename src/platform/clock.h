#pragma once

#include <cstdint>

namespace quillet
{

// Times that never run backwards.
class Clock
{
public:
    virtual ~Clock() = default;
    // Since the program's start.
    [[nodiscard]] virtual std::int64_t milliseconds() const = 0;
    // What the calling thread has spent on a processor.
    [[nodiscard]] virtual double processorSeconds() const = 0;
};

} // namespace quillet
