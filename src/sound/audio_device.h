#pragma once

namespace quillet
{

// A sound output while it is open. The destructor closes it.
class AudioDevice
{
public:
    virtual ~AudioDevice() = default;

    // Whether it was unplugged or its server has gone.
    [[nodiscard]] virtual bool isLost() const = 0;
};

} // namespace quillet
