#include "platform/sdl_sound_output.h"

#include "platform/cue_library.h"
#include "platform/cue_mixer.h"
#include "platform/sdl_audio_device.h"

#include <SDL.h>

#include <algorithm>
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

// Between two cues of a running hand the device stays open. After that it is closed: an SDL device
// that is paused goes on writing silence a hundred times a second.
constexpr auto restAfter = 5s;
constexpr auto retryAfter = 2s;

// A cue that a slow server holds up for longer than this no longer fits what the player sees.
constexpr auto staleAfter = 500ms;

constexpr auto patienceAtTheEnd = 300ms;

struct Request {
    std::string path; // empty: only to be ready
    Clock::time_point asked;
};

// What the thread owns: the device while it is open, and everything that sounds through it.
class CuePlayer
{
public:
    void play(const Request& request)
    {
        const bool onlyReady = request.path.empty();
        auto cue = onlyReady ? nullptr : m_library.find(request.path);
        if (m_device && m_device->isLost())
            m_device.reset();
        if (!m_device && (cue || onlyReady))
            openDevice();
        if (!m_device)
            return;
        if (onlyReady) {
            m_restAt = std::max(m_restAt, Clock::now() + restAfter);
            return;
        }
        if (Clock::now() - request.asked > staleAfter)
            cue = nullptr;
        m_restAt = Clock::now() + (cue ? cue->length() : 0ms) + restAfter;
        m_mixer.play(std::move(cue));
    }

    void rest() { m_device.reset(); }

    // When the device may be closed; nothing while it is.
    [[nodiscard]] std::optional<Clock::time_point> restAt() const
    {
        return m_device ? std::optional(m_restAt) : std::nullopt;
    }

private:
    void openDevice()
    {
        if (Clock::now() < m_retryAt)
            return;
        m_device = SdlAudioDevice::open(m_mixer);
        m_retryAt = Clock::now() + retryAfter;
    }

    CueLibrary m_library;
    CueMixer m_mixer;
    std::unique_ptr<SdlAudioDevice> m_device;
    Clock::time_point m_retryAt;
    Clock::time_point m_restAt;
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
            // To be ready is less than a cue that waits already.
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
        SDL_TLSCleanup();
        mailbox->reportEnd();
    }).detach();
}

SdlSoundOutput::~SdlSoundOutput()
{
    stop();
    m_mailbox->waitForEnd(patienceAtTheEnd);
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
    CuePlayer player;
    while (!mailbox->isClosed()) {
        if (const auto request = mailbox->take(player.restAt()))
            player.play(*request);
        else
            player.rest();
    }
}

} // namespace quillet
