#include "sound/cue_library.h"
#include "sound/cue_player.h"
#include "sound/game_cues.h"
#include "tests/sound/sound_files.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <functional>
#include <sys/stat.h>

namespace quillet::test
{

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
    std::string other = flatWave(1000, 100, {24000, 1, 2});
    other.insert(36, std::string("note\1\0\0\0x\0", 10));
    const auto converted = library.find(folder.file("other.wav", other));
    EXPECT_TRUE(converted && converted->samples.size() > 9000);
}

TEST(CueLibrary, aFileThatChangedIsReadAgain)
{
    const TemporaryFolder folder;
    const std::string path = folder.file("cue.wav", flatWave(1000, 100));
    CueLibrary library;
    const auto kept = library.find(path);
    EXPECT_EQ(library.find(path), kept);
    const auto written = std::filesystem::last_write_time(path);
    std::filesystem::last_write_time(folder.file("cue.wav", flatWave(2000, 100)),
                                     written + std::chrono::seconds(1));
    EXPECT_EQ(library.find(path)->samples.front(), 2000);
}

TEST(GameCues, areFilesBelowTheProgramsFolderForWhoWantsThem)
{
    struct : SoundOutput {
        void prepare() override { heard += "ready "; }
        void play(const std::string& path) override { heard += path + ' '; }
        std::string heard;
    } output;
    const TemporaryFolder folder;
    std::filesystem::create_directory(folder.file("wavs"));
    std::string all = "ready ";
    for (const char* name : {"wrong", "wrong2", "wrong3", "pokerwin1", "pokerwin2", "pokerwin3"})
        all += folder.file(std::string("wavs/") + name + ".wav", "x") + ' ';
    bool prfSound = false;
    GameCues game([&prfSound] { return prfSound; }, folder.file(""), output);
    game.prepare();
    game.play(Cue::wrong);
    EXPECT_EQ(output.heard, "");
    prfSound = true;
    game.prepare();
    for (const Cue cue : {Cue::deal, Cue::wrong, Cue::wrongOne, Cue::wrongTwo, Cue::smallWin,
                          Cue::mediumWin, Cue::bigWin})
        game.play(cue);
    EXPECT_EQ(output.heard, all) << "and silence for what is missing";
}

TEST(CueMixer, aCueThatIsCutOffFadesOutUnderItsSuccessor)
{
    const auto cue = [](std::int16_t value) {
        return std::make_shared<SoundCue>(SoundCue{std::vector<std::int16_t>(2000, value)});
    };
    CueMixer mixer;
    std::vector<std::int16_t> block(100);
    mixer.play(cue(32500));
    mixer.render(block);
    mixer.play(cue(300));
    mixer.render(block);
    EXPECT_EQ(block.front(), 32767);
    // This one is not heard: it neither fades nor ends the fade.
    mixer.play(cue(500));
    mixer.play(cue(700));
    block.resize(300);
    mixer.render(block);
    EXPECT_TRUE(std::ranges::is_sorted(block, std::greater()));
    EXPECT_EQ(block.front(), 700 + 300);
    EXPECT_LT(block[200], block.front()) << "the fade goes on";
    EXPECT_EQ(block.back(), 700);
}

TEST(CuePlayer, opensRestsAndTriesAgainByTheClockAndSkipsWhatComesTooLate)
{
    using namespace std::chrono_literals;
    struct Device : AudioDevice {
        explicit Device(const bool& lost) : m_lost(lost) {}
        [[nodiscard]] bool isLost() const override { return m_lost; }
        const bool& m_lost;
    };
    CuePlayer::Moment now{1h};
    int opened = 0;
    bool works = false, lost = false;
    auto takes = 2500ms;
    CueMixer* mixer = nullptr;
    CuePlayer player([&] { return now; },
                     [&](CueMixer& toPlay) -> std::unique_ptr<AudioDevice> {
                         ++opened;
                         now += takes;
                         mixer = &toPlay;
                         return works ? std::make_unique<Device>(lost) : nullptr;
                     });
    const auto heard = [&mixer] {
        std::vector<std::int16_t> block(2000);
        mixer->render(block);
        return block.back();
    };
    const TemporaryFolder folder;
    const std::string cue = folder.file("cue.wav", flatWave(1000, 1000));

    player.play(folder.file("missing.wav"), now);
    EXPECT_EQ(opened, 0) << "for nothing";
    player.play(cue, now);
    now += 1999ms;
    player.play(cue, now);
    EXPECT_EQ(opened, 1) << "no device: not at every cue";
    EXPECT_FALSE(player.restAt());
    now += 1ms;
    works = true;
    takes = 600ms;
    player.play(cue, now);
    EXPECT_EQ(heard(), 0) << "too late";
    EXPECT_EQ(player.restAt(), now + 5s) << "but the next one may be in time";
    player.play(cue, now - 400ms);
    EXPECT_EQ(heard(), 1000);
    EXPECT_EQ(player.restAt(), now + 1s + 5s);
    player.prepare();
    EXPECT_EQ(player.restAt(), now + 1s + 5s) << "never sooner than after the cue";
    EXPECT_EQ(opened, 2);
    lost = true;
    now += 2s;
    player.prepare();
    EXPECT_EQ(opened, 3);
    player.rest();
    EXPECT_FALSE(player.restAt());
}

} // namespace quillet::test
