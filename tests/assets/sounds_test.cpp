#include "assets/make/sounds/cues.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <memory>
#include <numeric>
#include <string>
#include <vector>

namespace quillet::test
{

namespace
{

const std::vector<std::string> cueNames{"deal",      "wrong",     "wrong2",   "wrong3",
                                        "pokerwin1", "pokerwin2", "pokerwin3"};

std::string pathOf(const std::string& cue)
{
    return QUILLET_WAVS_FOLDER "/" + cue + ".wav";
}

std::string outputOf(const std::string& command)
{
    const std::unique_ptr<FILE, int (*)(FILE*)> pipe(popen(command.c_str(), "r"), pclose);
    std::string output(1 << 20, '\0');
    output.resize(std::fread(output.data(), 1, output.size(), pipe.get()));
    return output;
}

// One channel of a committed cue as sox reads it: a reader that is not ours.
std::vector<double> samplesOf(const std::string& cue, int channel)
{
    const std::string raw =
        outputOf("sox " + pathOf(cue) + " -t s16 -L - remix " + std::to_string(channel));
    std::vector<double> samples;
    for (std::size_t i = 0; i + 1 < raw.size(); i += 2) {
        const unsigned low = static_cast<unsigned char>(raw[i]);
        const unsigned high = static_cast<unsigned char>(raw[i + 1]);
        samples.push_back(static_cast<std::int16_t>(low | high << 8) / 32768.0);
    }
    return samples;
}

double decibels(double amplitude)
{
    return 20 * std::log10(amplitude);
}

double peakOf(const std::vector<double>& samples)
{
    const auto [low, high] = std::minmax_element(samples.begin(), samples.end());
    return std::max(-*low, *high);
}

// The mean square of the loudest 50 ms.
double loudestPower(const std::vector<double>& samples)
{
    constexpr std::size_t window = 2400;
    double power = 0, loudest = 0;
    for (std::size_t i = 0; i < samples.size(); ++i) {
        power += samples[i] * samples[i];
        if (i >= window)
            power -= samples[i - window] * samples[i - window];
        loudest = std::max(loudest, power / window);
    }
    return loudest;
}

} // namespace

TEST(Sounds, makerWritesTheCommittedFiles)
{
    std::vector<std::string> made;
    for (const Cue& cue : makeCues()) {
        std::ifstream file(QUILLET_WAVS_FOLDER "/" + cue.fileName, std::ios::binary);
        const std::string committed((std::istreambuf_iterator<char>(file)), {});
        EXPECT_TRUE(cue.bytes == committed) << cue.fileName;
        made.push_back(cue.fileName.substr(0, cue.fileName.find('.')));
    }
    EXPECT_EQ(made, cueNames);
}

TEST(Sounds, formatAndLengthFitTheirUse)
{
    struct Range {
        double least, most;
    };
    const std::vector<Range> milliseconds{{40, 150},  {200, 400}, {200, 400}, {200, 400},
                                          {100, 200}, {200, 500}, {200, 500}};
    for (std::size_t i = 0; i < cueNames.size(); ++i) {
        const std::string path = pathOf(cueNames[i]);
        EXPECT_EQ(outputOf("soxi -r " + path), "48000\n") << path;
        EXPECT_EQ(outputOf("soxi -b " + path), "16\n") << path;
        const double length = 1000 * std::atof(outputOf("soxi -D " + path).c_str());
        EXPECT_GE(length, milliseconds[i].least) << path;
        EXPECT_LE(length, milliseconds[i].most) << path;
    }
}

TEST(Sounds, levelsAreEvenAndEndsAreClean)
{
    std::vector<double> loudness;
    for (const std::string& cue : cueNames) {
        SCOPED_TRACE(cue);
        double peak = 0, power = 0;
        std::size_t leadingSilence = 48000;
        for (const int channel : {1, 2}) {
            const std::vector<double> samples = samplesOf(cue, channel);
            ASSERT_FALSE(samples.empty());
            const double sum = std::accumulate(samples.begin(), samples.end(), 0.0);
            EXPECT_LT(std::abs(sum / static_cast<double>(samples.size())), 0.001);
            EXPECT_EQ(samples.front(), 0);
            EXPECT_EQ(samples.back(), 0);

            const auto heard = std::find_if(samples.begin(), samples.end(),
                                            [](double sample) { return std::abs(sample) > 0.003; });
            leadingSilence = std::min(
                leadingSilence, static_cast<std::size_t>(std::distance(samples.begin(), heard)));
            peak = std::max(peak, peakOf(samples));
            power += loudestPower(samples) / 2;
        }
        EXPECT_LT(leadingSilence, 240);
        EXPECT_GE(decibels(peak), -6);
        EXPECT_LE(decibels(peak), -3);
        loudness.push_back(decibels(std::sqrt(power)));
    }
    const auto [quietest, loudest] = std::minmax_element(loudness.begin(), loudness.end());
    EXPECT_LE(*loudest - *quietest, 6);
}

} // namespace quillet::test
