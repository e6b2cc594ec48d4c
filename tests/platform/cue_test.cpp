#include "platform/cue_library.h"
#include "platform/cue_mixer.h"
#include "tests/platform/sound_files.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <filesystem>
#include <sys/stat.h>

namespace quillet::test
{

namespace
{

std::shared_ptr<const SoundCue> cueOf(std::int16_t value, std::size_t frames)
{
    return std::make_shared<SoundCue>(
        SoundCue{std::vector<std::int16_t>(frames * soundChannels, value)});
}

std::vector<std::int16_t> rendered(CueMixer& mixer, std::size_t frames)
{
    std::vector<std::int16_t> block(frames * soundChannels, 1);
    mixer.render(block);
    return block;
}

} // namespace

using testing::Each;

TEST(CueMixer, cutCueFadesWithoutAStepUnderTheNewOne)
{
    CueMixer mixer;
    mixer.play(cueOf(30000, 48000));
    EXPECT_THAT(rendered(mixer, 100), Each(30000));

    mixer.play(cueOf(5000, 1000));
    const auto cut = rendered(mixer, 2000);
    EXPECT_EQ(cut[0], 32767);
    for (std::size_t i = 2; i < 2 * 999; ++i)
        ASSERT_LE(std::abs(cut[i] - cut[i - 2]), 250) << i;
    EXPECT_THAT(std::span(cut).subspan(2 * 240, 2 * 760), Each(5000));
    EXPECT_THAT(std::span(cut).subspan(2 * 1000), Each(0));
}

TEST(CueLibrary, whatIsNoCueIsNothing)
{
    const TemporaryFolder folder;
    const std::string good = flatWave(1000, 100);
    std::string boundless = good.substr(0, 44);
    boundless.replace(40, 4, "\xf0\xff\xff\xff");
    const std::string enormous = folder.file("enormous.wav", good);
    std::filesystem::resize_file(enormous, 4'000'000'000);
    ASSERT_EQ(mkfifo(folder.file("pipe.wav").c_str(), 0600), 0);

    CueLibrary library;
    for (const std::string& path :
         {folder.file("missing.wav"), folder.file("."), folder.file("pipe.wav"), enormous,
          folder.file("empty.wav", ""), folder.file("header.wav", good.substr(0, 30)),
          folder.file("truncated.wav", good.substr(0, good.size() / 2)),
          folder.file("text.wav", std::string(5000, 'x')), folder.file("boundless.wav", boundless),
          folder.file("longer.wav", flatWave(0x90, 30'000, {8000, 1, 1})),
          folder.file("slow.wav", flatWave(0x90, 10'000, {100, 1, 1}))})
        EXPECT_FALSE(library.find(path)) << path;
    EXPECT_TRUE(library.find(folder.file("good.wav", good)));
}

} // namespace quillet::test
