#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace quillet
{

inline constexpr int cueRate = 48000;

// A coefficient without its last bits, in which math libraries may differ, so that the sounds have
// the same bytes on every machine.
[[nodiscard]] double settled(double coefficient);

// Stereo sound in the making; both channels have the same length.
struct SoundBuffer {
    explicit SoundBuffer(double milliseconds);

    [[nodiscard]] std::size_t frames() const { return left.size(); }

    // Adds one sample at a place from -1 (left) to 1 (right).
    void add(std::size_t frame, double sample, double place);

    std::vector<double> left, right;
};

// Compresses loud samples towards 1 but below it, which makes a short burst sound fuller.
void soften(SoundBuffer& buffer, double drive);

// The final form: no constant offset, silence at both ends, the given peak in dBFS.
void finish(SoundBuffer& buffer, double fadeOutMilliseconds, double peakDecibels);

// A 16-bit stereo wave file. Samples must be between -1 and 1.
[[nodiscard]] std::string waveFile(const SoundBuffer& buffer);

} // namespace quillet
