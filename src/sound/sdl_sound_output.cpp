#include "sound/sdl_sound_output.h"

#include "sound/cue_player.h"
#include "sound/sdl.h"
#include "sound/sdl_audio_device.h"

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <optional>
#include <thread>
#include <utility>

namespace quillet
{

namespace
{

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

constexpr auto maxWaitForEnd = 300ms;

struct Request {
    std::string path; // empty: only to be ready
    Clock::time_point asked;
};

} // namespace

// All that the caller and the thread share; whoever leaves last destroys it.
class SdlSoundOutput::Mailbox
{
public:
    void put(Request request)
    {
        {
            const std::lock_guard lock(m_mutex);
            // A prepare request never replaces a waiting cue.
            if (!request.path.empty() || !m_request)
                m_request = std::move(request);
        }
        m_changed.notify_all();
    }

    void close()
    {
        {
            const std::lock_guard lock(m_mutex);
            m_closed = true;
        }
        m_changed.notify_all();
    }

    [[nodiscard]] bool isClosed()
    {
        const std::lock_guard lock(m_mutex);
        return m_closed;
    }

    // Waits for a request. Nothing when the time has come first, or the box is closed.
    std::optional<Request> take(std::optional<Clock::time_point> until)
    {
        std::unique_lock lock(m_mutex);
        const auto ready = [this] { return m_request || m_closed; };
        if (until)
            m_changed.wait_until(lock, *until, ready);
        else
            m_changed.wait(lock, ready);
        return m_closed ? std::nullopt : std::exchange(m_request, std::nullopt);
    }

    void reportEnd()
    {
        {
            const std::lock_guard lock(m_mutex);
            m_ended = true;
        }
        m_changed.notify_all();
    }

    void waitForEnd(Clock::duration patience)
    {
        std::unique_lock lock(m_mutex);
        m_changed.wait_for(lock, patience, [this] { return m_ended; });
    }

private:
    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::optional<Request> m_request;
    bool m_closed = false;
    bool m_ended = false;
};

SdlSoundOutput::SdlSoundOutput() : m_mailbox(std::make_shared<Mailbox>())
{
    std::thread([mailbox = m_mailbox] {
        work(mailbox);
        Sdl::leaveThread();
        mailbox->reportEnd();
    }).detach();
}

SdlSoundOutput::~SdlSoundOutput()
{
    stop();
    m_mailbox->waitForEnd(maxWaitForEnd);
}

void SdlSoundOutput::prepare()
{
    m_mailbox->put({{}, Clock::now()});
}

void SdlSoundOutput::play(const std::string& path)
{
    m_mailbox->put({path, Clock::now()});
}

void SdlSoundOutput::stop()
{
    m_mailbox->close();
}

void SdlSoundOutput::work(const std::shared_ptr<Mailbox>& mailbox)
{
    CuePlayer player(&Clock::now, &SdlAudioDevice::open);
    while (!mailbox->isClosed()) {
        const auto request = mailbox->take(player.restAt());
        if (!request)
            player.rest();
        else if (request->path.empty())
            player.prepare();
        else
            player.play(request->path, request->asked);
    }
}

} // namespace quillet
