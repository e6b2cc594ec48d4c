#include "cards/card_numbers.h"
#include "engine/card.h"
#include "tests/kit/pixels.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <iterator>
#include <map>
#include <sstream>
#include <string>

namespace quillet::test
{
namespace
{

constexpr int hatch = 53;
constexpr QRect index(3, 4, 18, 50); // upper left, at scale 1

bool isInk(QRgb pixel)
{
    return qGray(pixel) < 230;
}

bool hasInk(const QImage& card, const QRect& place)
{
    for (int y = place.top(); y <= place.bottom(); ++y)
        for (int x = place.left(); x <= place.right(); ++x)
            if (isInk(card.pixel(x, y)))
                return true;
    return false;
}

} // namespace

TEST(CardFaces, differInGreyAtThumbnailSize)
{
    std::vector<QImage> thumbnails;
    for (int number = 0; number <= 51; ++number)
        thumbnails.push_back(renderCard(number, QSize(35, 48)));
    for (std::size_t first = 0; first < 52; ++first)
        for (std::size_t second = first + 1; second < 52; ++second)
            EXPECT_GE(greyDifference(thumbnails[first], thumbnails[second], 64), 20)
                << first << " and " << second;
    const QRect rank(3, 4, 18, 25); // the nine is the six upside down
    EXPECT_GE(greyDifference(cardAt(23, 1).copy(rank), cardAt(35, 1).copy(rank), 64), 40);
}

TEST(CardFaces, blackQueensDifferInTheirOutline)
{
    const QRect side(32, 28, 9, 17); // left of the head, below the suit's mark
    EXPECT_GE(greyDifference(cardAt(44, 1).copy(side), cardAt(47, 1).copy(side), 64),
              side.width() * side.height() / 2);
}

TEST(CardFaces, showAsManyPipsAsTheirRankSaysAllClearlyLargerThanTheIndex)
{
    for (int number = 4; number <= 39; ++number) {
        const int rank = rankOf(number);
        int pips = 0, lowest = 99;
        int indexPip = 0;
        const QImage card = cardAt(number, 1).copy(2, 2, cardArtWidth - 4, cardArtHeight - 4);
        for (const Region& mark : regions(card, [](QRgb pixel) { return qGray(pixel) <= 160; }))
            if (mark.around.center().x() < index.right() + 1)
                indexPip = mark.around.height(); // the suit is below the rank
            else if (mark.around.center().x() < cardArtWidth - index.right() - 5) {
                ++pips;
                lowest = std::min(lowest, mark.around.height());
            }
        EXPECT_EQ(pips, rank) << number;
        EXPECT_GE(lowest, 1.4 * indexPip) << number;
    }
}

TEST(CardFaces, noSashIsGoldOnGold)
{
    for (int number = 40; number <= 51; ++number)
        EXPECT_NE(cardAt(number, 4).pixel(51 * 4, 66 * 4), qRgb(0xf0, 0xb9, 0x3a)) << number;
}

TEST(CardFaces, noClubHasAHole)
{
    const QImage two = cardAt(4, 2);
    EXPECT_EQ(regions(two, [](QRgb pixel) { return qGray(pixel) > 128; }).size(), 1U);
}

TEST(CardFaces, indexIsLargeClearOfTheBodyAndOfItsSuitsColour)
{
    for (int number = 0; number <= 51; ++number) {
        const QImage card = cardAt(number, 1);
        std::string lines; // of the index: '#' with ink, ' ' without
        for (int y = index.top(); y <= index.bottom(); ++y)
            lines += hasInk(card, {index.left(), y, index.width(), 1}) ? '#' : ' ';
        std::istringstream text(lines);
        const std::vector<std::string> marks{std::istream_iterator<std::string>(text), {}};
        ASSERT_EQ(marks.size(), 2U) << number << ": a rank and a suit";
        EXPECT_GE(marks[0].size(), 22U) << number;
        EXPECT_GE(marks[1].size(), 14U) << number;

        QRgb darkest = 0xffffffff;
        for (int y = index.top(); y <= index.bottom(); ++y)
            for (int x = index.left(); x <= index.right(); ++x)
                if (qGray(card.pixel(x, y)) < qGray(darkest))
                    darkest = card.pixel(x, y);
        const bool red = suitOf(number) == 1 || suitOf(number) == 2;
        EXPECT_EQ(qRed(darkest) > 150, red) << number;

        // Columns without ink separate the index from the body: more of them from pips, which look
        // like its suit.
        const int wanted = number >= 12 && number < 40 ? 4 : 2;
        int clear = 0;
        for (int x = index.center().x(); clear < wanted && x <= index.right() + 5; ++x)
            clear = hasInk(card, {x, index.top(), 1, index.height()}) ? 0 : clear + 1;
        EXPECT_EQ(clear, wanted) << number;
    }
}

TEST(CardBacks, areAllDifferentAndNoneIsBlank)
{
    for (int first = 53; first <= 66; ++first)
        for (int second = first + 1; second <= 66; ++second)
            EXPECT_GT(greyDifference(cardAt(first, 1), cardAt(second, 1), 0), 1500)
                << first << " and " << second;
}

TEST(CardBacks, blueVariantsHaveOtherColours)
{
    const auto areas = [](int back) {
        std::map<QRgb, int> pixels;
        const QImage card = cardAt(back, 3).copy(24, 24, 240, 342);
        for (int i = 0; i < card.width() * card.height(); ++i)
            ++pixels[card.pixel(i % card.width(), i / card.width())];
        return pixels;
    };
    for (const int back : {ivyBlackBack, fishCyanBack}) {
        std::map<QRgb, int> blue = areas(back + 1);
        for (const auto& [colour, pixels] : areas(back)) {
            const bool large = pixels > 100 && colour != qRgb(255, 255, 255);
            EXPECT_TRUE(!large || blue[colour] < 10) << std::hex << colour << " on " << back;
        }
    }
}

TEST(Hatch, isWhiteWithSparseInkRoundCornersAndAnOutline)
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
                const bool side = ((x % right == 0 || x == std::lround(3 * factor)) &&
                                   std::min(y, bottom - y) >= corner) ||
                                  (y % bottom == 0 && std::min(x, right - x) >= corner);
                outlined = outlined && !(side && picture.pixel(x, y) == white);
            }
        EXPECT_TRUE(outlined);
        ASSERT_EQ(areas.size(), 3U);
        EXPECT_EQ(qAlpha(std::next(areas.begin())->first), 255);
        EXPECT_EQ(picture.pixel(0, 0), 0U) << "as any other back";
        EXPECT_EQ(picture.pixel(right, bottom), 0U);
        // The face under it stays readable only with little ink.
        const double share =
            double(std::next(areas.begin())->second) / (picture.width() * picture.height());
        EXPECT_GT(share, 0.10);
        EXPECT_LT(share, 0.21);
    }
}

} // namespace quillet::test
