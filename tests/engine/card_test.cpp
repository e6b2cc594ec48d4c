#include "tests/engine/card_text.h"

#include <gtest/gtest.h>

namespace quillet::test
{

TEST(Card, rankAndSuitFollowTheNumber)
{
    EXPECT_EQ(makeCard(0), (Card{0, 1, 0}));
    EXPECT_EQ(makeCard(38), card("Th"));
    EXPECT_EQ(makeCard(51), (Card{51, 13, 3}));
}

} // namespace quillet::test
