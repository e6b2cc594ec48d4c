#include "assets/make/sounds/cues.h"
#include "tests/kit/file_text.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <complex>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <memory>
#include <numbers>
#include <numeric>

namespace quillet::test
{

namespace
{

const std::string folder = QUILLET_WAVS_FOLDER "/";

std::string outputOf(const std::string& command)
{
    const std::unique_ptr<FILE, int (*)(FILE*)> pipe(popen(command.c_str(), "r"), pclose);
    std::string output(1 << 20, '\0');
    output.resize(std::fread(output.data(), 1, output.size(), pipe.get()));
    return output;
}

// A committed cue as sox reads it, a reader that is not ours; the two channels alternate.
std::vector<double> samplesOf(const std::string& fileName)
{
    const std::string raw = outputOf("sox " + folder + fileName + " -t s16 -");
    std::vector<std::int16_t> samples(raw.size() / 2);
    std::memcpy(samples.data(), raw.data(), samples.size() * 2);
    std::vector<double> scaled(samples.size());
    std::transform(samples.begin(), samples.end(), scaled.begin(),
                   [](int s) { return s / 32768.0; });
    return scaled;
}

constexpr std::size_t window = 4800; // samples of 50 ms

// Where the loudest 50 ms begin.
std::size_t loudestAt(const std::vector<double>& samples)
{
    double power = 0, loudest = 0;
    std::size_t at = 0;
    for (std::size_t i = 0; i < samples.size(); ++i) {
        power += samples[i] * samples[i];
        power -= i < window ? 0 : samples[i - window] * samples[i - window];
        if (i + 1 >= window && power > loudest) {
            loudest = power;
            at = i + 1 - window;
        }
    }
    return at;
}

// How much the ear makes of a frequency in hertz: the curve A, 1 at 1000 Hz.
double heard(double hertz)
{
    const double f2 = hertz * hertz;
    const auto pole = [f2](double corner) { return f2 + corner * corner; };
    return 1.2589 * 12194.0 * 12194.0 * f2 * f2 /
           (pole(20.6) * std::sqrt(pole(107.7) * pole(737.9)) * pole(12194.0));
}

// Of the loudest 50 ms what a laptop's speaker gives, from 300 Hz on, as the ear hears it.
double decibelsToTheEar(const std::vector<double>& samples)
{
    constexpr double frames = window / 2.0;
    const double* const loudest = samples.data() + loudestAt(samples);
    double power = 0;
    for (double hertz = 300; hertz < 16000; hertz += 48000 / frames) {
        const auto step = std::polar(1.0, -2 * std::numbers::pi * hertz / 48000);
        for (const std::size_t channel : {0U, 1U}) {
            std::complex<double> sum = 0, turn = 1;
            for (std::size_t i = channel; i < window; i += 2, turn *= step)
                sum += loudest[i] * turn;
            power += std::norm(sum) / (frames * frames) * heard(hertz) * heard(hertz);
        }
    }
    return 10 * std::log10(power);
}

// How often something is struck: where 20 ms are twice as loud as the 20 ms before.
int strikes(const std::vector<double>& samples)
{
    constexpr std::ptrdiff_t step = 1920;
    int count = 0;
    double before = 0.02; // silence is never exceeded twice
    for (auto at = samples.begin(); samples.end() - at >= step; at += step) {
        const double power = std::inner_product(at, at + step, at, 0.0);
        count += power > 2 * before;
        before = std::max(power, 0.02);
    }
    return count;
}

} // namespace

TEST(Sounds, makerWritesTheCommittedFiles)
{
    for (const Cue& cue : makeCues())
        EXPECT_TRUE(cue.bytes == fileText(folder + cue.fileName)) << cue.fileName;
}

TEST(Sounds, everyCueFitsItsUseAndTheOthers)
{
    struct Use {
        const char* fileName;
        double leastMilliseconds, mostMilliseconds;
    };
    std::vector<double> loudness;
    for (const Use& use :
         {Use{"deal.wav", 40, 150}, Use{"wrong.wav", 200, 400}, Use{"wrong2.wav", 200, 400},
          Use{"wrong3.wav", 200, 400}, Use{"pokerwin1.wav", 100, 200},
          Use{"pokerwin2.wav", 200, 500}, Use{"pokerwin3.wav", 200, 500}}) {
        SCOPED_TRACE(use.fileName);
        EXPECT_EQ(outputOf("soxi -r " + folder + use.fileName), "48000\n");
        EXPECT_EQ(outputOf("soxi -b " + folder + use.fileName), "16\n");

        const std::vector<double> samples = samplesOf(use.fileName);
        ASSERT_GT(samples.size(), 2);
        const auto count = static_cast<double>(samples.size());
        EXPECT_GE(count / 96, use.leastMilliseconds);
        EXPECT_LE(count / 96, use.mostMilliseconds);
        EXPECT_LT(std::abs(std::accumulate(samples.begin(), samples.end(), 0.0) / count), 0.001);
        for (const std::size_t end :
             {std::size_t{0}, std::size_t{1}, samples.size() - 2, samples.size() - 1})
            EXPECT_EQ(samples[end], 0);

        const auto isHeard = [](double sample) { return std::abs(sample) > 0.003; };
        const auto start = std::find_if(samples.begin(), samples.end(), isHeard);
        EXPECT_LT(std::distance(samples.begin(), start), 5 * 96);
        const auto [low, high] = std::minmax_element(samples.begin(), samples.end());
        const double peak = 20 * std::log10(std::max(-*low, *high));
        EXPECT_GE(peak, -6);
        EXPECT_LE(peak, -3);
        loudness.push_back(decibelsToTheEar(samples));
    }
    EXPECT_EQ(strikes(samplesOf("wrong.wav")), 2);
    EXPECT_EQ(strikes(samplesOf("wrong2.wav")), 1);
    EXPECT_EQ(strikes(samplesOf("wrong3.wav")), 3);
    const auto [quietest, loudest] = std::minmax_element(loudness.begin(), loudness.end());
    EXPECT_LE(*loudest - *quietest, 4);
}

} // namespace quillet::test
