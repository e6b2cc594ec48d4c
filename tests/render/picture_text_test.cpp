#include "render/card_art/picture_text.h"

#include <QImage>
#include <gtest/gtest.h>

namespace quillet::test
{
namespace
{

constexpr QRgb red = 0xffff0000;
constexpr QRgb blue = 0xff0000ff;

QImage painted(std::string_view text, double axis)
{
    QImage picture(8, 4, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    paintPicture(painter, text, {{'r', red}, {'b', blue}}, axis);
    return picture;
}

} // namespace

TEST(PictureText, readsEveryKindOfSegment)
{
    const QPainterPath path = readPath("M1 2 L3 2 Q4 2 4 3C4 4 3 5 2 5 Z\n O10 10 2.5 R-4 -.5 2 1");
    EXPECT_TRUE(path.contains(QPointF(2, 3)));
    EXPECT_TRUE(path.contains(QPointF(12, 10)));
    EXPECT_FALSE(path.contains(QPointF(12.3, 12.3)));
    EXPECT_EQ(path.boundingRect(), QRectF(QPointF(-4, -0.5), QPointF(12.5, 12.5)));
}

TEST(PictureText, overlappingPiecesLeaveNoHole)
{
    EXPECT_TRUE(readPath("R0 0 4 4 R2 2 4 4").contains(QPointF(3, 3)));
}

TEST(PictureText, laterShapesLieOnTop)
{
    const QImage picture = painted("r- R0 0 8 4; b- R4 0 4 4;", 0);
    EXPECT_EQ(picture.pixel(1, 1), red);
    EXPECT_EQ(picture.pixel(6, 1), blue);
}

TEST(PictureText, pairPaintsTheReflectionToo)
{
    const QImage picture = painted(":r- R0 0 2 4;", 4);
    EXPECT_EQ(picture.pixel(1, 1), red);
    EXPECT_EQ(qAlpha(picture.pixel(3, 1)), 0);
    EXPECT_EQ(picture.pixel(6, 1), red);
}

TEST(PictureText, halfOutlineIsCompletedAndLined)
{
    const QImage picture = painted("|rb1 M4 0.5 L1.5 0.5 L1.5 3.5 L4 3.5;", 4);
    EXPECT_EQ(picture.pixel(3, 2), red);
    EXPECT_EQ(picture.pixel(5, 2), red);
    EXPECT_EQ(picture.pixel(1, 2), blue);
    EXPECT_EQ(picture.pixel(6, 2), blue);
}

} // namespace quillet::test
