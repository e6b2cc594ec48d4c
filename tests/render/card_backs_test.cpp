#include "tests/render/card_pixels.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <set>

namespace quillet::test
{
namespace
{

constexpr int hatch = 53;
constexpr std::array<double, 8> factors = {0.74, 1, 1.25, 1.5, 1.75, 2, 2.5, 3};

double inkShare(const QImage& picture)
{
    int inked = 0;
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x)
            inked += picture.pixel(x, y) == 0xffffffff ? 0 : 1;
    return double(inked) / (picture.width() * picture.height());
}

} // namespace

TEST(Cards, haveExactlyTheSizeAskedFor)
{
    for (const QSize size : {QSize(71, 96), QSize(96, 130), QSize(120, 163), QSize(168, 228)})
        for (const int number : {0, 39, 51, 53, 54, 65}) {
            const QImage card = renderCard(number, size);
            EXPECT_EQ(card.size(), size);
            EXPECT_EQ(card.format(), QImage::Format_ARGB32_Premultiplied);
        }
}

TEST(Cards, areOpaqueInsideAndSeeThroughOutsideTheCorners)
{
    std::vector<int> numbers = allFaces();
    const std::vector<int> backs = allPicturedBacks();
    numbers.insert(numbers.end(), backs.begin(), backs.end());
    for (const double factor : {0.74, 1.0, 1.5, 2.0})
        for (const int number : numbers) {
            const QImage card = cardAt(number, factor);
            const int right = card.width() - 1;
            const int bottom = card.height() - 1;
            const int corner = static_cast<int>(std::ceil(6 * factor));
            for (const QPoint at :
                 {QPoint(0, 0), QPoint(right, 0), QPoint(0, bottom), QPoint(right, bottom)})
                EXPECT_EQ(qAlpha(card.pixel(at)), 0) << number;
            bool opaque = true;
            for (int y = 0; y <= bottom; ++y)
                for (int x = 0; x <= right; ++x) {
                    const bool inCorner =
                        std::min(x, right - x) < corner && std::min(y, bottom - y) < corner;
                    opaque = opaque && (inCorner || qAlpha(card.pixel(x, y)) == 255);
                }
            EXPECT_TRUE(opaque) << number << " at " << factor;
            // The hairline must be there: a white card without it has no edge on a white table.
            EXPECT_LT(qGray(card.pixel(right / 2, 0)), 150) << number;
        }
}

TEST(CardBacks, areAllDifferentAndNoneIsBlank)
{
    std::vector<int> numbers = allPicturedBacks();
    numbers.push_back(hatch);
    numbers.push_back(66);
    for (std::size_t i = 0; i < numbers.size(); ++i)
        for (std::size_t j = i + 1; j < numbers.size(); ++j) {
            const QImage a = cardAt(numbers[i], 1);
            const QImage b = cardAt(numbers[j], 1);
            int different = 0;
            for (int y = 0; y < a.height(); ++y)
                for (int x = 0; x < a.width(); ++x)
                    different += a.pixel(x, y) == b.pixel(x, y) ? 0 : 1;
            EXPECT_GT(different, 1500) << numbers[i] << " and " << numbers[j];
        }
}

TEST(CardBacks, keepAWhiteMargin)
{
    for (const int number : allPicturedBacks()) {
        const QImage card = cardAt(number, 1);
        for (int x = 8; x < 88; ++x)
            for (const int y : {3, 126})
                EXPECT_EQ(card.pixel(x, y), 0xffffffff) << number;
    }
}

TEST(CardBacks, numbersThatNameNoCardGiveABlankOne)
{
    for (const int number : {-1, 52, 66, 1000})
        EXPECT_EQ(cardAt(number, 1), cardAt(66, 1));
    EXPECT_EQ(cardAt(66, 1).pixel(48, 65), 0xffffffff);
}

TEST(Hatch, isExactWhiteAndOneInk)
{
    for (const double factor : factors) {
        const QImage picture = cardAt(hatch, factor);
        std::set<QRgb> colours;
        for (int y = 0; y < picture.height(); ++y)
            for (int x = 0; x < picture.width(); ++x)
                colours.insert(picture.pixel(x, y));
        EXPECT_EQ(colours.size(), 2U) << factor;
        EXPECT_TRUE(colours.contains(0xffffffff)) << factor;
        EXPECT_EQ(qAlpha(*colours.begin()), 255) << factor;
        EXPECT_EQ(picture.pixel(0, 0), 0xffffffff) << factor;
        EXPECT_EQ(picture.pixel(picture.width() - 1, picture.height() - 1), 0xffffffff) << factor;
    }
}

TEST(Hatch, leavesAFaceBelowReadable)
{
    for (const double factor : factors) {
        const double share = inkShare(cardAt(hatch, factor));
        EXPECT_GT(share, 0.10) << factor;
        EXPECT_LT(share, 0.21) << factor;
    }
}

TEST(Hatch, outlinesTheWholeCardPlace)
{
    for (const double factor : factors) {
        const QImage picture = cardAt(hatch, factor);
        const int right = picture.width() - 1;
        const int bottom = picture.height() - 1;
        const int corner = static_cast<int>(std::ceil(6 * factor));
        for (int x = corner; x <= right - corner; ++x) {
            ASSERT_NE(picture.pixel(x, 0), 0xffffffff) << factor;
            ASSERT_NE(picture.pixel(x, bottom), 0xffffffff) << factor;
        }
        for (int y = corner; y <= bottom - corner; ++y) {
            ASSERT_NE(picture.pixel(0, y), 0xffffffff) << factor;
            ASSERT_NE(picture.pixel(right, y), 0xffffffff) << factor;
        }
    }
}

} // namespace quillet::test
