#pragma once

#include "platform/clock.h"

namespace quillet
{

// The steady clock of the system, which also times events, and the processor clock of this thread.
class SystemClock : public Clock
{
public:
    [[nodiscard]] std::int64_t milliseconds() const override;
    [[nodiscard]] double processorSeconds() const override;
};

} // namespace quillet
