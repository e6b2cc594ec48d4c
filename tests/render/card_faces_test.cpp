#include "tests/render/card_pixels.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace quillet::test
{
namespace
{

bool isInk(QRgb pixel)
{
    return qGray(pixel) < 230;
}

bool isMarked(const QImage& marks, int x, int y)
{
    return marks.constScanLine(y)[x] != 0;
}

// The inked pixels of a face that hang together with its upper left index. The card's edge, two
// pixels, is left out.
QImage indexOf(const QImage& card)
{
    QImage found(card.size(), QImage::Format_Grayscale8);
    found.fill(0);
    std::vector<QPoint> open;
    for (int y = 6; y < 50; ++y)
        for (int x = 4; x < 12; ++x)
            if (isInk(card.pixel(x, y)))
                open.emplace_back(x, y);
    while (!open.empty()) {
        const QPoint at = open.back();
        open.pop_back();
        const bool inside = QRect(2, 2, card.width() - 4, card.height() - 4).contains(at);
        if (!inside || isMarked(found, at.x(), at.y()) || !isInk(card.pixel(at)))
            continue;
        found.scanLine(at.y())[at.x()] = 1;
        for (int dy = -1; dy <= 1; ++dy)
            for (int dx = -1; dx <= 1; ++dx)
                open.emplace_back(at.x() + dx, at.y() + dy);
    }
    return found;
}

// The vertical runs of inked rows in an index: the rank, then the suit mark.
std::vector<int> runsOf(const QImage& index)
{
    std::vector<int> runs;
    bool inRun = false;
    for (int y = 0; y < index.height(); ++y) {
        const uchar* row = index.constScanLine(y);
        const bool inked = std::any_of(row, row + index.width(), [](uchar p) { return p != 0; });
        if (inked && !inRun)
            runs.push_back(0);
        if (inked)
            ++runs.back();
        inRun = inked;
    }
    return runs;
}

// How many clear pixels lie between the index and the nearest other ink.
int clearance(const QImage& card, const QImage& index)
{
    int nearest = card.width();
    for (int y = 2; y < 60; ++y)
        for (int x = 2; x < 60; ++x) {
            if (isMarked(index, x, y) || !isInk(card.pixel(x, y)))
                continue;
            for (int iy = 2; iy < 50; ++iy)
                for (int ix = 2; ix < 22; ++ix)
                    if (isMarked(index, ix, iy))
                        nearest =
                            std::min(nearest, std::max(std::abs(ix - x), std::abs(iy - y)) - 1);
        }
    return nearest;
}

} // namespace

TEST(CardFaces, differInGreyAtThumbnailSize)
{
    std::vector<QImage> thumbnails;
    for (const int number : cardNumbers(0, 51))
        thumbnails.push_back(renderCard(number, QSize(35, 48)));
    for (std::size_t first = 0; first < 52; ++first)
        for (std::size_t second = first + 1; second < 52; ++second)
            EXPECT_GE(greyDifference(thumbnails[first], thumbnails[second], 64), 20)
                << first << " and " << second;
}

TEST(CardFaces, indexIsLargeClearOfTheBodyAndOfItsSuitsColour)
{
    for (const int number : cardNumbers(0, 51)) {
        const QImage card = cardAt(number, 1);
        const QImage index = indexOf(card);
        const std::vector<int> runs = runsOf(index);
        ASSERT_EQ(runs.size(), 2U) << number;
        EXPECT_GE(runs[0], 22) << number;
        EXPECT_GE(runs[1], 14) << number;
        EXPECT_GE(clearance(card, index), 2) << number;

        const bool red = number % 4 == 1 || number % 4 == 2;
        QRgb darkest = 0xffffffff;
        for (int y = 0; y < 50; ++y)
            for (int x = 0; x < 22; ++x)
                if (isMarked(index, x, y) && qGray(card.pixel(x, y)) < qGray(darkest))
                    darkest = card.pixel(x, y);
        EXPECT_EQ(qRed(darkest) > 150, red) << number;
    }
}

} // namespace quillet::test
