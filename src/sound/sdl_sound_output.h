#pragma once

#include "sound/sound_output.h"

#include <future>
#include <memory>
#include <string>

namespace quillet
{

// Sound through SDL on its own thread, which alone reads files and talks to the sound server. The
// caller never waits for either: a path that the thread has not started on is replaced by the next
// one. A process has one of these at a time.
class SdlSoundOutput : public SoundOutput
{
public:
    SdlSoundOutput();

    // Gives the thread a moment to close the device. A thread that hangs in a sound server is left
    // behind; it uses nothing of this object.
    ~SdlSoundOutput() override;

    SdlSoundOutput(const SdlSoundOutput&) = delete;
    SdlSoundOutput& operator=(const SdlSoundOutput&) = delete;

    void prepare() override;
    void play(const std::string& path) override;

    // Ends all sound for good and returns at once, for a process that is about to end.
    void stop();

private:
    class Mailbox;

    static void work(const std::shared_ptr<Mailbox>& mailbox);

    std::shared_ptr<Mailbox> m_mailbox;
    std::future<void> m_ended; // of the thread
};

} // namespace quillet
