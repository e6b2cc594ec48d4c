#include "assets/make/sounds/cues.h"
#include "tests/kit/file_text.h"

#include <gtest/gtest.h>

namespace quillet::test
{

TEST(Sounds, makerWritesTheCommittedFiles)
{
    for (const CueFile& cue : makeCues())
        EXPECT_TRUE(cue.bytes == fileText(QUILLET_WAVS_FOLDER "/" + cue.fileName)) << cue.fileName;
}

} // namespace quillet::test
