#include "faults/run_time_error.h"
#include "table/masked_blit.h"
#include "table/surface.h"

#include <gtest/gtest.h>

namespace quillet::test
{

namespace
{

constexpr std::uint32_t white = 0xFFFFFF;

Surface filled(double width, double height, const QColor& colour, double scale = 1.0)
{
    Surface surface({width, height}, scale);
    surface.fill(colour);
    return surface;
}

} // namespace

TEST(Surface, positionsAndSizesAreRoundedByThemselves)
{
    EXPECT_EQ(deviceOrigin(150.4, 1.5), 226);
    EXPECT_EQ(deviceOrigin(-0.5, 1.0), 0);
    EXPECT_EQ(deviceOrigin(-10, 1.25), -12);
    for (const double x : {40.0, 150.4, 260.8, 371.2, 481.6})
        EXPECT_EQ(deviceRect({x, 284.3, 96, 130}, 1.75).size(), QSize(168, 228));
}

TEST(Surface, copiesAreClippedOnBothSides)
{
    const Surface red = filled(4, 4, Qt::red);
    Surface target = filled(4, 4, Qt::blue);
    target.copyFrom(red, {-2, -2}, {9, 9}, {0, 0});
    EXPECT_EQ(target.image().pixelColor(1, 1), QColor(Qt::blue));
    EXPECT_EQ(target.image().pixelColor(2, 2), QColor(Qt::red));
    target.copyFrom(red, {0, 0}, {4, 4}, {3, -3});
    EXPECT_EQ(target.image().pixelColor(3, 0), QColor(Qt::red));
    EXPECT_EQ(target.image().pixelColor(2, 0), QColor(Qt::blue));
    target.copyFrom(red, {50, 50}, {4, 4}, {0, 0});
    EXPECT_EQ(target.image().pixelColor(0, 0), QColor(Qt::blue));
}

TEST(MaskedBlit, theTransparentColourLetsTheBackgroundThrough)
{
    Surface source = filled(3, 2, Qt::white);
    source.pixels().setPixelColor(1, 0, Qt::red);
    source.pixels().setPixelColor(2, 0, QColor(0xff, 0xff, 0xfe));
    Surface table = filled(10, 10, Qt::darkGreen);
    MaskedBlit(table, table, source, {0, 0, 3, 2}, 5, 4, white);
    EXPECT_EQ(table.image().pixelColor(5, 4), QColor(Qt::darkGreen));
    EXPECT_EQ(table.image().pixelColor(6, 4), QColor(Qt::red));
    EXPECT_EQ(table.image().pixelColor(7, 4), QColor(0xff, 0xff, 0xfe));
    EXPECT_EQ(table.image().pixelColor(5, 5), QColor(Qt::darkGreen));

    const Surface back = filled(10, 10, Qt::yellow);
    MaskedBlit(table, back, source, {1, 0, 2, 2}, 0, 0, white);
    EXPECT_EQ(table.image().pixelColor(0, 0), QColor(Qt::red));
    EXPECT_EQ(table.image().pixelColor(0, 1), QColor(Qt::yellow));
    EXPECT_EQ(table.image().pixelColor(1, 1), QColor(Qt::darkGreen));
}

TEST(MaskedBlit, emptyAndOverlargeRectangles)
{
    const Surface source = filled(3, 3, Qt::red);
    Surface table = filled(4, 4, Qt::darkGreen);
    const QImage before = table.image();
    MaskedBlit(table, table, source, {2, 2, 2, 9}, 0, 0, white);
    MaskedBlit(table, table, source, {2, 0, 0, 2}, 1, 1, white);
    MaskedBlit(table, table, source, {0, 2, 2, 0}, 1, 1, white);
    EXPECT_EQ(table.image(), before);
    EXPECT_THROW(MaskedBlit(table, table, source, {0, 0, 32768, 1}, 0, 0, white), RunTimeError);
    EXPECT_THROW(MaskedBlit(table, table, source, {0, -40000, 1, 0}, 0, 0, white), RunTimeError);
    MaskedBlit(table, table, source, {0, 0, 32767, 32767}, 2, 2, white);
    EXPECT_EQ(table.image().pixelColor(3, 3), QColor(Qt::red));
    EXPECT_EQ(table.image().pixelColor(1, 1), QColor(Qt::darkGreen));
}

} // namespace quillet::test
