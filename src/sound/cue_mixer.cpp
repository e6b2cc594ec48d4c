#include "sound/cue_mixer.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace quillet
{

namespace
{

// Three milliseconds: too short to hear, too long to click.
constexpr std::size_t fadeSamples = std::size_t{soundRate} * 3 / 1000 * soundChannels;

} // namespace

std::int16_t CueMixer::Voice::take()
{
    return isSounding() ? cue->samples[next++] : std::int16_t{0};
}

void CueMixer::play(std::shared_ptr<const SoundCue> cue)
{
    const std::lock_guard lock(m_mutex);
    // A cue that has not started needs no fade, and must not end the fade of another.
    if (m_playing.isSounding() && m_playing.next > 0) {
        m_leaving = std::exchange(m_playing, {});
        m_fadeLeft = fadeSamples;
    }
    m_playing = {std::move(cue)};
}

void CueMixer::render(std::span<std::int16_t> block)
{
    const std::lock_guard lock(m_mutex);
    for (std::int16_t& sample : block) {
        int sum = m_playing.take();
        if (m_fadeLeft > 0) {
            sum += m_leaving.take() * static_cast<int>(m_fadeLeft) / static_cast<int>(fadeSamples);
            --m_fadeLeft;
        }
        using Limits = std::numeric_limits<std::int16_t>;
        sample = static_cast<std::int16_t>(std::clamp<int>(sum, Limits::min(), Limits::max()));
    }
}

} // namespace quillet
