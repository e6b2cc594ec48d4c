#pragma once

#include "sound/audio_device.h"
#include "sound/cue_library.h"
#include "sound/cue_mixer.h"

#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <string>

namespace quillet
{

// Decides what is played and when the device is open. It belongs to one thread, the only one that
// may wait for a sound server.
class CuePlayer
{
public:
    using Moment = std::chrono::steady_clock::time_point;
    using Now = std::function<Moment()>;
    // Opens a device that plays what the mixer renders; null if there is none.
    using OpenDevice = std::function<std::unique_ptr<AudioDevice>(CueMixer&)>;

    CuePlayer(Now now, OpenDevice openDevice);

    // Opens the device for a cue that follows soon.
    void prepare();
    // Plays a file that was requested at that moment, and cuts off the one playing. A request that
    // is too late, or a file that cannot be played, is silent.
    void play(const std::string& path, Moment asked);
    // Closes the device.
    void rest();

    // When to call `rest`; nothing while the device is closed.
    [[nodiscard]] std::optional<Moment> restAt() const;

private:
    // Returns whether there is a device.
    bool openDevice();

    Now m_now;
    OpenDevice m_open;
    CueLibrary m_library;
    CueMixer m_mixer;
    std::unique_ptr<AudioDevice> m_device;
    Moment m_retryAt;
    Moment m_restAt;
};

} // namespace quillet
