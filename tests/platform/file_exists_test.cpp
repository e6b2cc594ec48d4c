#include "platform/file_exists.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

namespace quillet::test
{

TEST(FileExists, onlyAFileWithSomethingInItCounts)
{
    const QTemporaryDir temporary;
    const std::string folder = temporary.path().toStdString() + "/";
    std::ofstream(folder + "grün.jpg") << "x";
    std::ofstream(folder + "empty.jpg");
    std::filesystem::create_symlink("grün.jpg", folder + "link.jpg");
    std::filesystem::create_symlink("loop.jpg", folder + "loop.jpg");

    EXPECT_TRUE(FileExists(folder + "grün.jpg"));
    EXPECT_TRUE(FileExists(folder + "link.jpg"));
    for (const std::string& path :
         {folder + "empty.jpg", folder + "missing.jpg", folder + "loop.jpg", folder,
          folder + "grün.jpg/below", folder + std::string(5000, 'x'), std::string(),
          folder + std::string("grün.jpg\0more", 14), std::string("/dev/null")})
        EXPECT_FALSE(FileExists(path)) << path;
}

} // namespace quillet::test
