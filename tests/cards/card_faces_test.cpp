#include "platform/colour_contrast.h"
#include "tests/cards/card_pixels.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace quillet::test
{
namespace
{

constexpr QRect index(3, 4, 18, 50); // upper left, at the cards' own size

bool isInk(QRgb pixel)
{
    return qGray(pixel) < 230;
}

// The lengths of the runs of inked lines.
template <typename IsInked>
std::vector<int> runs(int first, int last, const IsInked& isInked)
{
    std::vector<int> found;
    bool inRun = false;
    for (int line = first; line <= last; ++line) {
        const bool inked = isInked(line);
        if (inked && !inRun)
            found.push_back(0);
        if (inked)
            ++found.back();
        inRun = inked;
    }
    return found;
}

// Where ink hangs together: the rectangle around each mark inside the card's edge.
std::vector<QRect> marks(const QImage& card)
{
    std::vector<QRect> found;
    QImage left = card.copy(card.rect().adjusted(2, 2, -2, -2));
    for (int y = 0; y < left.height(); ++y)
        for (int x = 0; x < left.width(); ++x) {
            std::vector<QPoint> edge{{x, y}};
            QRect around;
            while (!edge.empty()) {
                const QPoint at = edge.back();
                edge.pop_back();
                if (!left.rect().contains(at) || qGray(left.pixel(at)) > 160)
                    continue;
                left.setPixel(at, 0xffffffff);
                around |= QRect(at, QSize(1, 1));
                for (const int dy : {-1, 0, 1})
                    for (const int dx : {-1, 0, 1})
                        edge.emplace_back(at.x() + dx, at.y() + dy);
            }
            if (!around.isEmpty())
                found.push_back(around.translated(2, 2));
        }
    return found;
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

TEST(CardFaces, blackQueensDifferInTheirOutline)
{
    const QRect side(32, 28, 9, 17); // of the head, on the left below the suit's mark
    EXPECT_GE(greyDifference(cardAt(44, 1).copy(side), cardAt(47, 1).copy(side), 64),
              side.width() * side.height() / 2);
}

TEST(CardFaces, showAsManyPipsAsTheirRankSaysAllClearlyLargerThanTheIndex)
{
    for (const int number : cardNumbers(4, 39)) {
        const int rank = number / 4 + 1;
        int pips = 0, lowest = 99, indexPip = 0;
        for (const QRect& mark : marks(cardAt(number, 1)))
            if (mark.center().x() < index.right() + 3)
                indexPip = mark.height(); // the suit stands below the rank
            else if (mark.center().x() < cardArtWidth - index.right() - 3) {
                ++pips;
                lowest = std::min(lowest, mark.height());
            }
        EXPECT_EQ(pips, rank) << number;
        EXPECT_GE(lowest, 1.4 * indexPip) << number;
    }
}

TEST(CardFaces, indexStaysReadableUnderTheHatch)
{
    const QImage hatch = cardAt(53, 1);
    for (const int number : cardNumbers(0, 51)) {
        const QImage card = cardAt(number, 1);
        int grey[2] = {0, 0}, pixels[2] = {0, 0}; // of the paper and of the ink
        for (int y = index.top(); y <= index.bottom(); ++y)
            for (int x = index.left(); x <= index.right(); ++x) {
                const bool covered = hatch.pixel(x, y) != qRgb(255, 255, 255);
                const bool ink = isInk(card.pixel(x, y));
                grey[ink] += qGray((covered ? hatch : card).pixel(x, y));
                ++pixels[ink];
            }
        const auto mean = [&](bool ink) { return QColor::fromHsv(0, 0, grey[ink] / pixels[ink]); };
        EXPECT_GE(contrast(mean(true), mean(false)), 3) << number;
    }
}

TEST(CardFaces, indexIsLargeClearOfTheBodyAndOfItsSuitsColour)
{
    for (const int number : cardNumbers(0, 51)) {
        const QImage card = cardAt(number, 1);
        QRgb darkest = 0xffffffff;
        const std::vector<int> heights = runs(index.top(), index.bottom(), [&](int y) {
            bool inked = false;
            for (int x = index.left(); x <= index.right(); ++x) {
                inked = inked || isInk(card.pixel(x, y));
                if (qGray(card.pixel(x, y)) < qGray(darkest))
                    darkest = card.pixel(x, y);
            }
            return inked;
        });
        ASSERT_EQ(heights.size(), 2U) << number << ": a rank and a suit";
        EXPECT_GE(heights[0], 22) << number;
        EXPECT_GE(heights[1], 14) << number;
        const bool red = number % 4 == 1 || number % 4 == 2;
        EXPECT_EQ(qRed(darkest) > 150, red) << number;

        // Columns side by side without ink part the index from the body; from pips, which look
        // like its suit, more of them.
        const int rank = number / 4 + 1;
        const int wanted = rank >= 4 && rank <= 10 ? 4 : 2;
        int clear = 0;
        for (int x = index.center().x(); clear < wanted && x <= index.right() + 5; ++x) {
            ++clear;
            for (int y = index.top(); y <= index.bottom(); ++y)
                clear = isInk(card.pixel(x, y)) ? 0 : clear;
        }
        EXPECT_EQ(clear, wanted) << number;
    }
}

} // namespace quillet::test
