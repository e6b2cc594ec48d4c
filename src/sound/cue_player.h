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

// Decides what sounds and when the device is open. It belongs to one thread, the only one that
// may wait for a sound server; the moments are handed in by whoever runs it.
class CuePlayer
{
public:
    using Moment = std::chrono::steady_clock::time_point;
    using Now = std::function<Moment()>;
    // Opens a device that plays what the mixer renders; null when there is none.
    using OpenDevice = std::function<std::unique_ptr<AudioDevice>(CueMixer&)>;

    CuePlayer(Now now, OpenDevice openDevice);

    // Opens the device for a cue that will follow soon.
    void prepare();
    // Plays a file, which the caller asked for at that moment, and cuts off the one that sounds.
    // One that comes too late is silent, and so is one that cannot be played.
    void play(const std::string& path, Moment asked);
    // Closes the device.
    void rest();

    // When `rest` is due; nothing while the device is closed.
    [[nodiscard]] std::optional<Moment> restAt() const;

private:
    // Whether there is a device.
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
