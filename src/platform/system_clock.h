#pragma once

#include "platform/clock.h"

namespace quillet
{

// The system's steady clock, by which events are delivered, and its clock of this thread.
class SystemClock : public Clock
{
public:
    [[nodiscard]] std::int64_t milliseconds() const override;
    [[nodiscard]] double processorSeconds() const override;
};

} // namespace quillet
