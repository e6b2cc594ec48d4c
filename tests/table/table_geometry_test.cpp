#include "table/table_geometry.h"

#include <gtest/gtest.h>

namespace quillet::test
{

namespace
{

constexpr TableMeasures ours{800, 514, 96, 130, 60, 169};
constexpr TableMeasures small{674, 428, 71, 96, 60, 169};

} // namespace

TEST(TableGeometry, placesOfOurCards)
{
    EXPECT_EQ(deckPlace(ours), QRectF(200.6, 91.25, 105.6, 143));
    const auto cards = cardPlaces(ours);
    for (std::size_t i = 0; i < cards.size(); ++i)
        EXPECT_EQ(cards[i], QRectF(40 + 110.4 * static_cast<double>(i), 284.3, 96, 130));
    EXPECT_EQ(chartPlace(ours), QRectF(619, 12, 169, 490));
    EXPECT_EQ(statusBarPosition(ours), QPointF(12, 442));
    EXPECT_EQ(firstRejectPlace(ours), QRectF(138, 185.5, 124.8, 143));
    EXPECT_EQ(firstDeckPlace(ours), QRectF(231.6, 149.75, 105.6, 143));
}

TEST(TableGeometry, placesOfSmallerCards)
{
    EXPECT_EQ(rejectPlace(small), QRectF(107, 97, 92.3, 105.6));
    EXPECT_EQ(deckPlace(small), QRectF(107 + 69.225, 97 - 26.4 + 30, 78.1, 105.6));
    EXPECT_EQ(cardPlaces(small)[4], QRectF(40 + 4 * 81.65, 100.6 + 142.56, 71, 96));
    EXPECT_EQ(chartPlace(small), QRectF(493, 12, 169, 404));
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
