#pragma once

#include <cstdint>

namespace quillet
{

// Time since some fixed moment; it never runs backwards.
class Clock
{
public:
    virtual ~Clock() = default;
    [[nodiscard]] virtual std::int64_t milliseconds() = 0;
    [[nodiscard]] virtual double seconds() = 0; // with the fraction that the machine can tell
};

} // namespace quillet
