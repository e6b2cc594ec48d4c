#include "main_window/window_layout.h"

#include <gtest/gtest.h>

namespace quillet::test
{

TEST(WindowLayout, aLargeFontWindowIsWiderAndHasTheLowBar)
{
    ScreenMetrics large;
    large.twipsPerPixel = 12;
    const WindowLayout layout(large);
    EXPECT_EQ(layout.statusBarPixels(), 60);
    const QSizeF outer = layout.sizeForPicture({800, 440});
    EXPECT_DOUBLE_EQ(outer.width(), 1.055 * 9688);
    EXPECT_DOUBLE_EQ(outer.height(), 5280 + 544 + 720) << "the top piece is not added";
}

} // namespace quillet::test
