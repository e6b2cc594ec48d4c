#pragma once

namespace quillet
{

// A sound output while it is open; what destroys it closes it.
class AudioDevice
{
public:
    virtual ~AudioDevice() = default;

    // True once it was unplugged or its server went away.
    [[nodiscard]] virtual bool isLost() const = 0;
};

} // namespace quillet
