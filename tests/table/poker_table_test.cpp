#include "table/picture_box.h"
#include "table/poker_table.h"
#include "table/table_canvas.h"
#include "tests/kit/pixels.h"
#include "tests/kit/presented.h"
#include "tests/kit/recorded_errors.h"

#include <gtest/gtest.h>

#include <vector>

namespace quillet::test
{

namespace
{

class PokerTableTest : public testing::Test
{
protected:
    void SetUp() override
    {
        std::int32_t width = 0, height = 0;
        table.library().cdtInit(width, height);
        table.setMeasures({800, 514, double(width), double(height), 60, 169});
        table.makePictures();
        preferences.prfPKBackFace = 65;
        table.resetGraphics();
        window.show();
        QCoreApplication::processEvents();
    }

    // Whether the place shows this card, but for its rounded corners.
    bool shows(Slot slot, int cardNumber)
    {
        const auto* place = window.findChild<PictureBox*>(QString("picPoker%1").arg(slot));
        const QRect middle = place->geometry().adjusted(8, 8, -8, -8);
        return difference(presented(window).copy(middle),
                          cardAt(cardNumber, 1.0).copy(middle.translated(-place->pos())))
            .isEmpty();
    }

    Preferences preferences;
    RecordedErrors errors;
    QWidget window;
    PokerTable table{preferences, errors, &window};
};

} // namespace

TEST_F(PokerTableTest, cardsLieInTheBackThatWasChosenWhenTheyFlew)
{
    table.flyCardTo(0);
    preferences.prfPKBackFace = 60;
    table.flyCardTo(3);
    EXPECT_TRUE(shows(0, 65) && shows(3, 60));
    EXPECT_TRUE(table.isCardShowing(3));
    EXPECT_FALSE(table.isCardShowing(1));
    table.showFace(3, 17, false);
    EXPECT_TRUE(shows(3, 17));
    table.takeAway(3);
    QCoreApplication::processEvents();
    EXPECT_FALSE(table.isCardShowing(3) || shows(3, 17));
}

TEST_F(PokerTableTest, aFlightThatBreaksOffLeavesATableThatCanBePlayedOn)
{
    preferences.prfAnimation = true;
    preferences.prfAnimationDelay = 3'000'000;
    table.flyCardTo(2);
    EXPECT_EQ(errors.texts, std::vector<std::string>{"Error in AnimateCard  Overflow"});
    EXPECT_TRUE(table.canvas().persistentImage());
    EXPECT_TRUE(shows(2, 65));
    table.showHold(2, true);
    table.recover();
    EXPECT_TRUE(window.findChild<PictureBox*>("picDeal0")->isShowing());
    EXPECT_FALSE(window.findChild<PictureBox*>("picPoker2")->isChecked());
}

} // namespace quillet::test
