#include "platform/file_exists.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <fstream>

namespace quillet::test
{

TEST(FileExists, onlyAFileWithSomethingInItCounts)
{
    const QTemporaryDir temporary;
    const std::string folder = temporary.path().toStdString() + "/";
    std::ofstream(folder + "grün.jpg") << "x";
    std::ofstream(folder + "empty.jpg");

    EXPECT_TRUE(FileExists(folder + "grün.jpg"));
    for (const std::string& path :
         {folder + "empty.jpg", folder + "missing.jpg", folder, folder + "grün.jpg/below",
          folder + std::string(5000, 'x'), std::string(), std::string("/dev/null")})
        EXPECT_FALSE(FileExists(path)) << path;
}

} // namespace quillet::test
