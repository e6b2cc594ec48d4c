#include "platform/file_exists.h"
#include "tests/kit/plain_user.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <fstream>
#include <sys/stat.h>

namespace quillet::test
{

TEST(FileExists, onlyAFileWithSomethingInItCounts)
{
    const QTemporaryDir temporary;
    const std::string folder = temporary.path().toStdString() + "/";
    std::ofstream(folder + "grün.jpg") << "x";
    std::ofstream(folder + "empty.jpg") << "";

    EXPECT_TRUE(FileExists(folder + "grün.jpg"));
    for (const std::string& path :
         {folder + "empty.jpg", folder + "missing.jpg", folder, folder + "grün.jpg/below",
          folder + std::string(5000, 'x'), std::string(), std::string("/dev/null")})
        EXPECT_FALSE(FileExists(path)) << path;

    ASSERT_EQ(::chmod(temporary.path().toLocal8Bit(), 0755), 0);
    ASSERT_EQ(::chmod((folder + "grün.jpg").c_str(), 0), 0);
    const PlainUser user;
    EXPECT_FALSE(FileExists(folder + "grün.jpg")) << "it may not be read";
}

} // namespace quillet::test
