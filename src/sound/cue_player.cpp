#include "sound/cue_player.h"

#include <algorithm>
#include <utility>

namespace quillet
{

namespace
{

using namespace std::chrono_literals;

// The device stays open between two cues of a hand. After this time it is closed, because a paused
// SDL device still writes silence a hundred times a second.
constexpr auto restAfter = 5s;
constexpr auto retryAfter = 2s;

// A cue that is later than this, because of a slow server, no longer fits what the player sees.
constexpr auto staleAfter = 500ms;

} // namespace

CuePlayer::CuePlayer(Now now, OpenDevice openDevice)
    : m_now(std::move(now)), m_open(std::move(openDevice))
{
}

void CuePlayer::prepare()
{
    if (openDevice())
        m_restAt = std::max(m_restAt, m_now() + restAfter);
}

void CuePlayer::play(const std::string& path, Moment asked)
{
    auto cue = m_library.find(path);
    if (!m_device && !cue)
        return;
    if (!openDevice())
        return;
    if (m_now() - asked > staleAfter)
        cue = nullptr;
    m_restAt = m_now() + (cue ? cue->length() : 0ms) + restAfter;
    m_mixer.play(std::move(cue));
}

void CuePlayer::rest()
{
    m_device.reset();
}

std::optional<CuePlayer::Moment> CuePlayer::restAt() const
{
    return m_device ? std::optional(m_restAt) : std::nullopt;
}

bool CuePlayer::openDevice()
{
    if (m_device && m_device->isLost())
        m_device.reset();
    if (!m_device && m_now() >= m_retryAt) {
        m_device = m_open(m_mixer);
        m_retryAt = m_now() + retryAfter;
    }
    return m_device != nullptr;
}

} // namespace quillet
