#include "tests/cards/card_pixels.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <map>

namespace quillet::test
{
namespace
{

constexpr int hatch = 53;

} // namespace

TEST(CardBacks, areAllDifferentAndNoneIsBlank)
{
    for (const int first : cardNumbers(53, 66))
        for (int second = first + 1; second <= 66; ++second)
            EXPECT_GT(greyDifference(cardAt(first, 1), cardAt(second, 1), 0), 1500)
                << first << " and " << second;
}

TEST(Hatch, isASparseExactlyWhiteRoundedGroundWithOneInkAndAnOutline)
{
    constexpr QRgb white = 0xffffffff;
    for (const double factor : {0.74, 1.0, 1.25, 1.5, 1.75, 2.0, 2.5, 3.0}) {
        SCOPED_TRACE(factor);
        const QImage picture = cardAt(hatch, factor);
        const int right = picture.width() - 1;
        const int bottom = picture.height() - 1;
        const int corner = static_cast<int>(std::ceil(6 * factor));
        std::map<QRgb, int> areas;
        bool outlined = true;
        for (int y = 0; y <= bottom; ++y)
            for (int x = 0; x <= right; ++x) {
                ++areas[picture.pixel(x, y)];
                const bool side = (x % right == 0 && std::min(y, bottom - y) >= corner) ||
                                  (y % bottom == 0 && std::min(x, right - x) >= corner);
                outlined = outlined && !(side && picture.pixel(x, y) == white);
            }
        EXPECT_TRUE(outlined);
        ASSERT_EQ(areas.size(), 3U);
        EXPECT_EQ(qAlpha(std::next(areas.begin())->first), 255);
        EXPECT_EQ(picture.pixel(0, 0), 0U) << "as any other back";
        EXPECT_EQ(picture.pixel(right, bottom), 0U);
        // Little ink leaves a face below readable.
        const double share =
            double(std::next(areas.begin())->second) / (picture.width() * picture.height());
        EXPECT_GT(share, 0.10);
        EXPECT_LT(share, 0.21);
    }
}

} // namespace quillet::test
