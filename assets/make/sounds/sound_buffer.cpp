#include "assets/make/sounds/sound_buffer.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <numbers>

namespace quillet
{

namespace
{

std::size_t framesIn(double milliseconds)
{
    return static_cast<std::size_t>(std::lround(milliseconds * cueRate / 1000));
}

// Removes frequencies far below the cues, including any constant offset.
void removeRumble(std::vector<double>& samples)
{
    const double keep = settled(std::exp(-2 * std::numbers::pi * 30 / cueRate));
    double input = 0;
    double output = 0;
    for (double& sample : samples) {
        output = keep * (output + sample - input);
        input = sample;
        sample = output;
    }
}

void fadeEnds(std::vector<double>& samples, std::size_t fadeOut)
{
    const std::size_t fadeIn = framesIn(0.3);
    for (std::size_t i = 0; i < fadeIn; ++i)
        samples[i] *= static_cast<double>(i) / static_cast<double>(fadeIn);
    for (std::size_t i = 0; i < fadeOut; ++i) {
        const double rest = static_cast<double>(i) / static_cast<double>(fadeOut);
        samples[samples.size() - 1 - i] *= rest * rest * (3 - 2 * rest);
    }
}

double peakOf(const std::vector<double>& samples)
{
    double peak = 0;
    for (const double sample : samples)
        peak = std::max(peak, std::abs(sample));
    return peak;
}

void append(std::string& bytes, std::uint32_t value, int count)
{
    for (int i = 0; i < count; ++i)
        bytes.push_back(static_cast<char>(value >> (8 * i) & 0xff));
}

void appendSample(std::string& bytes, double sample)
{
    append(bytes, static_cast<std::uint32_t>(std::lround(sample * 32767)), 2);
}

} // namespace

double settled(double coefficient)
{
    return static_cast<double>(static_cast<float>(coefficient));
}

SoundBuffer::SoundBuffer(double milliseconds)
    : left(framesIn(milliseconds)), right(framesIn(milliseconds))
{
}

void SoundBuffer::add(std::size_t frame, double sample, double place)
{
    left[frame] += sample * (1 - place) / 2;
    right[frame] += sample * (1 + place) / 2;
}

void soften(SoundBuffer& buffer, double drive)
{
    const double scale = drive / std::max(peakOf(buffer.left), peakOf(buffer.right));
    for (auto* channel : {&buffer.left, &buffer.right})
        for (double& sample : *channel)
            sample = sample * scale / (1 + std::abs(sample * scale));
}

void finish(SoundBuffer& buffer, double fadeOutMilliseconds, double peakDecibels)
{
    for (auto* channel : {&buffer.left, &buffer.right}) {
        removeRumble(*channel);
        fadeEnds(*channel, framesIn(fadeOutMilliseconds));
    }
    const double peak = std::max(peakOf(buffer.left), peakOf(buffer.right));
    const double gain = settled(std::pow(10, peakDecibels / 20)) / peak;
    for (auto* channel : {&buffer.left, &buffer.right})
        for (double& sample : *channel)
            sample *= gain;
}

std::string waveFile(const SoundBuffer& buffer)
{
    constexpr std::uint32_t channels = 2;
    constexpr std::uint32_t frameBytes = 4;
    constexpr std::uint32_t pcm = 1;
    constexpr std::uint32_t headerRest = 36;
    const auto dataBytes = static_cast<std::uint32_t>(buffer.frames()) * frameBytes;

    std::string bytes = "RIFF";
    append(bytes, headerRest + dataBytes, 4);
    bytes += "WAVEfmt ";
    append(bytes, 16, 4);
    append(bytes, pcm, 2);
    append(bytes, channels, 2);
    append(bytes, cueRate, 4);
    append(bytes, cueRate * frameBytes, 4);
    append(bytes, frameBytes, 2);
    append(bytes, 16, 2);
    bytes += "data";
    append(bytes, dataBytes, 4);
    for (std::size_t i = 0; i < buffer.frames(); ++i) {
        appendSample(bytes, buffer.left[i]);
        appendSample(bytes, buffer.right[i]);
    }
    return bytes;
}

} // namespace quillet
