#include "table/table_geometry.h"

#include <gtest/gtest.h>

namespace quillet::test
{

TEST(TableGeometry, placesOfOurCards)
{
    constexpr TableMeasures ours{800, 514, 96, 130, 60, 169};
    EXPECT_EQ(deckPlace(ours), QRectF(200.6, 91.25, 105.6, 143));
    const auto cards = cardPlaces(ours);
    for (std::size_t i = 0; i < cards.size(); ++i)
        EXPECT_EQ(cards[i], QRectF(40 + 110.4 * static_cast<double>(i), 284.3, 96, 130));
    EXPECT_EQ(chartPlace(ours), QRectF(619, 12, 169, 490));
    EXPECT_EQ(statusBarPlace(ours), QRectF(12, 442, 468, 60));
    EXPECT_EQ(chartFrame(ours), (FramePlace{FramePiece::picSide2, {606, 0, 13, 514}}));
    EXPECT_EQ(tableFrame(ours)[1], (FramePlace{FramePiece::picBottom, {0, 428, 800, 14}}));
    EXPECT_EQ(tableFrame(ours)[4], (FramePlace{FramePiece::picBottom, {0, 500, 800, 14}}));
    EXPECT_EQ(firstRejectPlace(ours), QRectF(138, 185.5, 124.8, 143));
    EXPECT_EQ(firstDeckPlace(ours), QRectF(231.6, 149.75, 105.6, 143));
}

} // namespace quillet::test
