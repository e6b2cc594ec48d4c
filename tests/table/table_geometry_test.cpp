#include "table/table_geometry.h"

#include <gtest/gtest.h>

namespace quillet::test
{

namespace
{

constexpr TableMeasures ours{800, 514, 96, 130, 60, 169};
constexpr TableMeasures small{674, 428, 71, 96, 60, 169};

void expectRect(const QRectF& rect, double left, double top, double width, double height)
{
    EXPECT_NEAR(rect.x(), left, 1e-9);
    EXPECT_NEAR(rect.y(), top, 1e-9);
    EXPECT_NEAR(rect.width(), width, 1e-9);
    EXPECT_NEAR(rect.height(), height, 1e-9);
}

} // namespace

TEST(TableGeometry, placesOfOurCards)
{
    expectRect(deckPlace(ours), 200.6, 91.25, 105.6, 143);
    const auto cards = cardPlaces(ours);
    for (std::size_t i = 0; i < cards.size(); ++i)
        expectRect(cards[i], 40 + 110.4 * static_cast<double>(i), 284.3, 96, 130);
    expectRect(chartPlace(ours), 619, 12, 169, 490);
    EXPECT_EQ(statusBarPosition(ours), QPointF(12, 442));
    expectRect(firstRejectPlace(ours), 138, 185.5, 124.8, 143);
    expectRect(firstDeckPlace(ours), 231.6, 149.75, 105.6, 143);
}

TEST(TableGeometry, placesOfSmallerCards)
{
    expectRect(rejectPlace(small), 107, 97, 92.3, 105.6);
    expectRect(deckPlace(small), 107 + 69.225, 97 - 26.4 + 30, 78.1, 105.6);
    expectRect(cardPlaces(small)[4], 40 + 4 * 81.65, 100.6 + 142.56, 71, 96);
    expectRect(chartPlace(small), 493, 12, 169, 404);
    EXPECT_EQ(statusBarPosition(small), QPointF(12, 356));
}

TEST(TableGeometry, framePiecesInTheOrderOfPainting)
{
    const auto frame = tableFrame(ours);
    ASSERT_EQ(frame.size(), 5U);
    EXPECT_EQ(frame[0], (FramePlace{FramePiece::picTop, {0, 0, 800, 14}}));
    EXPECT_EQ(frame[1], (FramePlace{FramePiece::picBottom, {0, 428, 800, 14}}));
    EXPECT_EQ(frame[2], (FramePlace{FramePiece::picSide1, {0, 0, 13, 514}}));
    EXPECT_EQ(frame[3], (FramePlace{FramePiece::picSide2, {787, 0, 13, 514}}));
    EXPECT_EQ(frame[4], (FramePlace{FramePiece::picBottom, {0, 500, 800, 14}}));
    EXPECT_EQ(chartFrame(ours), (FramePlace{FramePiece::picSide2, {606, 0, 13, 514}}));
    EXPECT_EQ(firstFrame(ours).size(), 4U);
}

} // namespace quillet::test
