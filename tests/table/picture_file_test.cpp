#include "faults/run_time_error.h"
#include "table/picture_file.h"

#include <QBuffer>
#include <QFile>
#include <QTemporaryDir>
#include <gmock/gmock.h>

namespace quillet::test
{

namespace
{

QByteArray saved(const char* format)
{
    QImage picture(40, 30, QImage::Format_RGB888);
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x)
            picture.setPixelColor(x, y, QColor(x * 6, y * 8, x * y % 256));
    QBuffer buffer;
    EXPECT_TRUE(buffer.open(QIODevice::WriteOnly) && picture.save(&buffer, format));
    return buffer.data();
}

// One red pixel after an extension block; Qt writes no such files.
QByteArray savedGif()
{
    return QByteArray::fromHex("47494638396101000100800000ff0000ffffff"
                               "21fe016100"
                               "2c00000000010001000002024401003b");
}

QImage loaded(const QByteArray& bytes)
{
    const QTemporaryDir folder;
    QFile file(folder.filePath("picture"));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    file.close();
    return loadPictureFile(file.fileName(), 1.0).image;
}

// Empty for a file that can be loaded.
std::string problemOf(const QByteArray& bytes)
{
    try {
        EXPECT_FALSE(loaded(bytes).isNull());
        return "";
    } catch (const RunTimeError& error) {
        return error.what();
    }
}

} // namespace

TEST(PictureFile, whatIsCutShortOrTakesTooMuchMemoryIsRefused)
{
    const QByteArray thumbnail = QByteArray::fromHex("ffe10006ffdaffd9");
    for (const QByteArray& whole :
         {saved("JPG"), saved("JPG").insert(2, thumbnail), saved("BMP"), savedGif()}) {
        EXPECT_EQ(problemOf(whole), "");
        for (const qsizetype length : {whole.size() / 2, whole.size() * 9 / 10, whole.size() - 1})
            EXPECT_NE(problemOf(whole.first(length)), "") << length << " of " << whole.size();
        EXPECT_EQ(problemOf(whole + "and a note"), "");
    }
    testing::internal::CaptureStderr();
    EXPECT_NE(problemOf(saved("JPG").chopped(1)), "");
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "") << "no decoder complains";
    for (const auto& [head, trouble] : {std::pair{"P5 8000 8000 255\n", "too large"},
                                        {"P5 9000 1 255\n", "too large"},
                                        {"P5 0 0 255\n", "Invalid picture"},
                                        {"GIF89a", "Invalid picture"},
                                        {"\xff\xd8\xff", "Invalid picture"}})
        EXPECT_THAT(problemOf(head), testing::HasSubstr(trouble)) << head;
}

TEST(PictureFile, aBitmapMayBeStoredFromTheTopDown)
{
    QByteArray bytes = saved("BMP");
    const QImage upwards = loaded(bytes);
    bytes.replace(22, 4, QByteArray::fromHex("e2ffffff")); // a height of -30
    EXPECT_EQ(loaded(bytes), upwards.mirrored());
}

} // namespace quillet::test
