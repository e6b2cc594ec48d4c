#include "assets/make/sounds/instruments.h"

#include <array>
#include <cmath>
#include <complex>
#include <cstdint>
#include <numbers>
#include <random>

namespace quillet
{

namespace
{

constexpr double pi = std::numbers::pi;

// The factor per frame of a decay by 60 dB in `seconds`.
double decayPerFrame(double seconds)
{
    return settled(std::pow(10, -3 / (seconds * cueRate)));
}

std::size_t frameAt(double seconds)
{
    return static_cast<std::size_t>(std::lround(seconds * cueRate));
}

void ring(std::vector<double>& channel, std::size_t start, double hertz, double level,
          double seconds)
{
    const double angle = 2 * pi * hertz / cueRate;
    const double decay = decayPerFrame(seconds);
    const std::complex<double> turn{decay * settled(std::cos(angle)),
                                    decay * settled(std::sin(angle))};
    double real = level;
    double imaginary = 0;
    for (std::size_t i = start; i < channel.size(); ++i) {
        channel[i] += imaginary;
        const double next = real * turn.real() - imaginary * turn.imag();
        imaginary = real * turn.imag() + imaginary * turn.real();
        real = next;
    }
}

// A two-pole band-pass filter in state-variable form, stable at every width used here.
class BandFilter
{
public:
    BandFilter(double hertz, double width)
        : m_step(settled(std::tan(pi * hertz / cueRate))), m_damping(width),
          m_scale(1 / (1 + m_step * (m_step + m_damping)))
    {
    }

    double operator()(double input)
    {
        const double band = (m_band + m_step * (input - m_low)) * m_scale;
        const double low = m_low + m_step * band;
        m_band = 2 * band - m_band;
        m_low = 2 * low - m_low;
        return band * m_damping;
    }

private:
    double m_step, m_damping, m_scale;
    double m_band = 0, m_low = 0;
};

// Noise between -1 and 1. The C++ standard fixes the numbers of the engine, but not those of its
// distributions.
class Noise
{
public:
    explicit Noise(std::size_t seed) : m_engine(static_cast<std::uint32_t>(seed + 1)) {}

    double operator()() { return static_cast<double>(m_engine()) / 2147483648.0 - 1; }

private:
    std::mt19937 m_engine;
};

} // namespace

void strike(SoundBuffer& buffer, const Note& note, std::span<const Mode> modes)
{
    constexpr double detune = 0.0007;
    const std::size_t start = frameAt(note.start);
    for (const Mode& mode : modes) {
        const double hertz = note.hertz * mode.ratio;
        const double level = note.level * mode.level / 2;
        ring(buffer.left, start, hertz * (1 - detune), level * (1 - note.place), mode.seconds);
        ring(buffer.right, start, hertz * (1 + detune), level * (1 + note.place), mode.seconds);
    }
}

void puff(SoundBuffer& buffer, const Puff& noise)
{
    const std::size_t start = frameAt(noise.start);
    const auto rise = static_cast<double>(frameAt(noise.rise));
    const double decay = decayPerFrame(noise.seconds);
    Noise source(start + static_cast<std::size_t>(noise.hertz));
    BandFilter filter(noise.hertz, noise.width);
    double level = noise.level;
    for (std::size_t i = start; i < buffer.frames(); ++i) {
        const auto age = static_cast<double>(i - start);
        if (age >= rise)
            level *= decay;
        const double swell = age < rise ? age / rise : 1;
        buffer.add(i, filter(source()) * level * swell, noise.place);
    }
}

void pluckHarp(SoundBuffer& buffer, const Note& note)
{
    constexpr double stiffness = 0.0004;
    constexpr double pluckedAt = 0.28;
    std::array<Mode, 9> modes{};
    for (std::size_t i = 0; i < 8; ++i) {
        const auto n = static_cast<double>(i + 1);
        modes[i] = {n * std::sqrt(1 + stiffness * n * n),
                    settled(std::sin(pi * n * pluckedAt)) / (n * n), 0.62 / (0.25 + 0.75 * n)};
    }
    // The knock of the wooden body.
    modes[8] = {6.27, 0.09, 0.05};
    strike(buffer, note, modes);
    puff(buffer, {note.start, 2600, 0.9, note.level * 0.35, 0.001, 0.022, note.place});
}

void strikeWood(SoundBuffer& buffer, const Note& note)
{
    constexpr std::array modes{Mode{1, 1, 0.40}, Mode{2.02, 0.45, 0.26}, Mode{3.93, 0.16, 0.09},
                               Mode{9.2, 0.03, 0.02}};
    strike(buffer, note, modes);
    puff(buffer, {note.start, 520, 1.1, note.level * 0.9, 0.001, 0.030, note.place});
}

void strikeBell(SoundBuffer& buffer, const Note& note)
{
    constexpr std::array modes{Mode{1, 0.8, 0.40}, Mode{2.76, 0.30, 0.22}, Mode{5.40, 0.08, 0.09}};
    strike(buffer, note, modes);
}

} // namespace quillet
