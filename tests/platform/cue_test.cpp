#include "platform/cue_library.h"
#include "tests/platform/sound_files.h"

#include <gtest/gtest.h>

#include <filesystem>
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
}

} // namespace quillet::test
