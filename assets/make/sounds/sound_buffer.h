#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace quillet
{

inline constexpr int cueRate = 48000;

// A coefficient without the last bits in which one machine's math library may differ from
// another's, so that everybody who makes the sounds gets the same bytes.
[[nodiscard]] double settled(double coefficient);

// Stereo sound in the making; both channels have the same length.
struct SoundBuffer {
    explicit SoundBuffer(double milliseconds);

    [[nodiscard]] std::size_t frames() const { return left.size(); }

    // Adds one sample at a place from -1 (left) to 1 (right).
    void add(std::size_t frame, double sample, double place);

    std::vector<double> left, right;
};

// Bends loud samples towards 1 without ever reaching it, which makes a short burst fuller.
void soften(SoundBuffer& buffer, double drive);

// Brings the buffer to its final form: no DC, silence at both ends, the given peak (dBFS).
void finish(SoundBuffer& buffer, double fadeOutMilliseconds, double peakDecibels);

// A wave file of 16 bits, stereo. Samples must lie within -1 and 1.
[[nodiscard]] std::string waveFile(const SoundBuffer& buffer);

} // namespace quillet
