#include "main_window/window_layout.h"

#include <gtest/gtest.h>

namespace quillet::test
{

TEST(WindowLayout, theWindowIsThePictureWithBarAndFrame)
{
    const ScreenMetrics normal;
    const WindowLayout layout(normal, true);
    // 4 x 1 pixel of border and 40 twips; the caption and the menu bar 19 pixels each.
    EXPECT_EQ(layout.frameAllowance(), QSizeF(100, 670));
    EXPECT_EQ(WindowLayout(normal, false).frameAllowance(), QSizeF(100, 385));
    const QSizeF outer = layout.sizeForPicture({12000, 6600}, 210);
    EXPECT_EQ(outer, QSizeF(12100, 6600 + 900 + 210 + 670));
    EXPECT_EQ(layout.innerPixels(outer), QSizeF(800, 514));
    EXPECT_FALSE(layout.isTooNarrow({640, 1}));
    EXPECT_TRUE(layout.isTooNarrow({639, 1}));
    EXPECT_EQ(layout.innerPixels(layout.widened({8000, 7000})), QSizeF(633, 422));
}

TEST(WindowLayout, aLargeFontWindowIsWiderAndHasTheLowBar)
{
    ScreenMetrics large;
    large.twipsPerPixelX = large.twipsPerPixelY = 12;
    const WindowLayout layout(large, true);
    EXPECT_EQ(layout.statusBarHeight(), 720);
    EXPECT_EQ(layout.frameAllowance(), QSizeF(88, 544));
    const QSizeF outer = layout.sizeForPicture({9600, 5280}, 168);
    EXPECT_DOUBLE_EQ(outer.width(), 1.055 * 9688);
    EXPECT_DOUBLE_EQ(outer.height(), 5280 + 544 + 720) << "the top piece is not added";
}

} // namespace quillet::test
