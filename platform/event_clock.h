#pragma once

#include "platform/clock.h"

namespace quillet
{

// The time by which events are delivered: the system's steady clock.
class EventClock : public Clock
{
public:
    [[nodiscard]] std::int64_t milliseconds() override;
    [[nodiscard]] double seconds() override;
};

} // namespace quillet
