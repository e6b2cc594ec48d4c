#include "sound/sdl_sound_output.h"

#include "sound/cue_player.h"
#include "sound/sdl.h"

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
using std::chrono::steady_clock;

constexpr auto maxWaitForEnd = 300ms;

struct Request {
    std::string path; // empty: only open the device
    steady_clock::time_point asked;
};

} // namespace

// Everything that the caller and the thread share. The last to leave destroys it.
class SdlSoundOutput::Mailbox
{
public:
    void put(Request request)
    {
        change([&] {
            // A prepare request never replaces a waiting cue.
            if (!request.path.empty() || !m_request)
                m_request = std::move(request);
        });
    }

    void close()
    {
        change([this] { m_closed = true; });
    }

    [[nodiscard]] bool isClosed()
    {
        const std::lock_guard lock(m_mutex);
        return m_closed;
    }

    // Waits for a request. Returns nothing at the time given, or if the mailbox is closed.
    std::optional<Request> take(std::optional<steady_clock::time_point> until)
    {
        std::unique_lock lock(m_mutex);
        const auto ready = [this] { return m_request || m_closed; };
        if (until)
            m_changed.wait_until(lock, *until, ready);
        else
            m_changed.wait(lock, ready);
        return m_closed ? std::nullopt : std::exchange(m_request, std::nullopt);
    }

private:
    template <typename Act>
    void change(const Act& act)
    {
        {
            const std::lock_guard lock(m_mutex);
            act();
        }
        m_changed.notify_all();
    }

    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::optional<Request> m_request;
    bool m_closed = false;
};

SdlSoundOutput::SdlSoundOutput() : m_mailbox(std::make_shared<Mailbox>())
{
    std::promise<void> ended;
    m_ended = ended.get_future();
    std::thread([mailbox = m_mailbox, ended = std::move(ended)]() mutable {
        work(mailbox);
        Sdl::leaveThread();
        ended.set_value();
    }).detach();
}

SdlSoundOutput::~SdlSoundOutput()
{
    stop();
    m_ended.wait_for(maxWaitForEnd);
}

void SdlSoundOutput::prepare()
{
    m_mailbox->put({{}, steady_clock::now()});
}

void SdlSoundOutput::play(const std::string& path)
{
    m_mailbox->put({path, steady_clock::now()});
}

void SdlSoundOutput::stop()
{
    m_mailbox->close();
}

void SdlSoundOutput::work(const std::shared_ptr<Mailbox>& mailbox)
{
    CuePlayer player(&steady_clock::now, &openSdlDevice);
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
