#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <mutex>
#include <span>
#include <vector>

namespace quillet
{

inline constexpr int soundRate = 48000;
inline constexpr int soundChannels = 2;

// A decoded sound at `soundRate`, its channels interleaved.
struct SoundCue {
    [[nodiscard]] std::chrono::milliseconds length() const
    {
        constexpr std::size_t samplesPerSecond = std::size_t{soundRate} * soundChannels;
        return std::chrono::milliseconds(samples.size() * 1000 / samplesPerSecond);
    }

    std::vector<std::int16_t> samples;
};

// Plays one cue at a time as the stream that the audio device requests. A cue that is cut off fades
// out under the next one, so that there is no click. May be used from any thread.
class CueMixer
{
public:
    // Starts this cue with the next block; null only cuts off the one playing.
    void play(std::shared_ptr<const SoundCue> cue);

    // Fills the block, with silence if nothing plays. Neither allocates nor frees.
    void render(std::span<std::int16_t> block);

private:
    struct Voice {
        std::shared_ptr<const SoundCue> cue;
        std::size_t next = 0;

        std::int16_t take();
        [[nodiscard]] bool isSounding() const { return cue && next < cue->samples.size(); }
    };

    std::mutex m_mutex;
    Voice m_playing;
    Voice m_leaving;
    std::size_t m_fadeLeft = 0;
};

} // namespace quillet
