#include "platform/picture_box.h"
#include "platform/picture_file.h"
#include "shell/frm_preferences.h"
#include "tests/robust/stand_ins.h"

#include <QComboBox>
#include <QFile>
#include <QGuiApplication>
#include <QSessionManager>
#include <QTest>
#include <QTimer>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quillet::test
{

using testing::ElementsAre;
using testing::HasSubstr;

namespace
{

void write(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
}

// The head of a bitmap of this size, and nothing after it.
QByteArray bitmapHead(std::int32_t width, std::int32_t height)
{
    QByteArray head("BM\0\0\0\0\0\0\0\0\x36\0\0\0\x28\0\0\0", 18);
    for (const std::int32_t side : {width, height})
        for (int shift = 0; shift < 32; shift += 8)
            head.append(static_cast<char>(side >> shift));
    head.append(QByteArray("\1\0\x18\0", 4)).append(24, '\0');
    return head;
}

// Only the toolkit can make a session manager, and nobody looks at this one.
void announceEndOfSession()
{
    alignas(QSessionManager) static std::byte nobody[sizeof(QSessionManager)];
    emit qGuiApp->commitDataRequest(reinterpret_cast<QSessionManager&>(nobody));
}

struct Running : StandIns {
    Running()
    {
        settings["prfPokerAutoDeal"] = "False";
        loaded = window.Form_Load();
    }
    void newHand()
    {
        const int hands = window.counters().hands;
        if (window.handState().handDealt)
            window.mnuPoker_Click();
        else
            window.picDeal_Click(0);
        EXPECT_EQ(window.counters().hands, hands + 1);
        EXPECT_TRUE(window.handState().handDealt && !window.handState().handBusy);
    }

    frmMain window{desktop};
    bool loaded = false;
};

} // namespace

TEST(Fault, anErrorInsideAHandIsToldAndTheNextClickDeals)
{
    Running game;
    game.window.picPoker_MouseDown(0);
    game.failing = "random";
    game.window.mnuPoker_Click();
    EXPECT_THAT(game.errors, ElementsAre("Error  in  showPokerHand (  the wind  )"));
    EXPECT_FALSE(game.window.handState().handDealt || game.window.handState().handBusy);
    EXPECT_THAT(game.window.handState().holdFlags, testing::Each(false));
    EXPECT_EQ(game.window.counters().total, -5) << "nothing was dealt, nothing is charged";
    game.failing.clear();
    game.newHand();
}

TEST(Fault, aPictureThatBreaksBetweenTwoGamesSparesTheNextHand)
{
    Running game;
    write(game.picture(), "no picture");
    game.window.mnuPoker_Click();
    ASSERT_EQ(game.errors.size(), 1U);
    EXPECT_THAT(game.errors[0], HasSubstr("Error  in  initPokerScreen (  Invalid picture"));
    game.newHand();
}

TEST(Fault, flightsThatBreakOffLeaveTheDeckInSight)
{
    Running game;
    game.window.prfAnimation = true;
    game.window.prfAnimationDelay = 3'000'000;
    game.newHand();
    EXPECT_THAT(game.errors, testing::Each("Error in AnimateCard  Overflow"));
    EXPECT_EQ(game.errors.size(), 5U);
    EXPECT_TRUE(game.window.findChild<PictureBox*>("picDeal0")->isShowing());
}

TEST(Fault, startingUpEndsWithoutAWindow)
{
    StandIns world;
    world.failing = "read";
    frmMain unread(world.desktop);
    EXPECT_FALSE(unread.Form_Load());
    EXPECT_THAT(world.errors, ElementsAre("Error  in  Form_Load (  the wind  )"));

    // The background is read once more for the first game, before the window shows.
    world.failing = "clock";
    world.settings["prfAnimationDelay"] = "-1";
    world.errors.clear();
    write(world.picture(), "no picture");
    frmMain unpainted(world.desktop);
    EXPECT_FALSE(unpainted.Form_Load());
    EXPECT_FALSE(unpainted.isVisible());
    EXPECT_TRUE(world.ends.empty() && world.writes.empty());
}

TEST(Fault, aCalibrationThatFailsIsToldAndThePlayGoesOn)
{
    StandIns world;
    world.failing = "clock";
    world.settings["prfAnimationDelay"] = "-1";
    frmMain window(world.desktop);
    EXPECT_TRUE(window.Form_Load());
    EXPECT_THAT(world.errors, ElementsAre("Error in InitAnimDelay the wind"));
    EXPECT_TRUE(window.handState().handDealt);
    EXPECT_EQ(window.prfAnimationDelay, 0);
}

TEST(Fault, settingsThatCannotBeStoredAreToldAndTheProcessEnds)
{
    Running game;
    game.failing = "write";
    game.window.close();
    EXPECT_THAT(game.errors, ElementsAre("Error  in  Form_Unload (  the wind  )"));
    EXPECT_THAT(game.ends, ElementsAre(1));
    EXPECT_FALSE(game.window.isVisible());
}

TEST(Fault, aPageThatCannotBeOpenedIsTold)
{
    Running game;
    game.failing = "open";
    game.window.picStatusBar_Click();
    EXPECT_THAT(game.errors, ElementsAre("statusclickthe wind"));
}

TEST(Fault, theDialogTellsItsErrorsAndStaysUsable)
{
    StandIns world;
    CardLibrary closedLibrary;
    Preferences preferences;
    preferences.prfPKBackFace = 99;
    frmPreferences dialog({preferences, closedLibrary, world, QSize(96, 130), 15,
                           [] { throw std::runtime_error("the wind"); }, [] {}},
                          nullptr);
    dialog.show();
    ASSERT_EQ(world.errors.size(), 1U);
    EXPECT_THAT(world.errors[0], HasSubstr("Error  in  Form_Activate (  "));
    dialog.findChild<QComboBox*>("Combo1")->setCurrentIndex(2);
    EXPECT_THAT(world.errors[1], HasSubstr("Error  in  Combo1_Click (  "));
    dialog.cmdSave_Click();
    EXPECT_EQ(world.errors[2], "Error  in  cmdSave_Click (  the wind  )");
    EXPECT_EQ(preferences.prfPKBackFace, 55);
}

TEST(Fault, anEndingSessionStoresTheSettingsAndShowsNoFarewell)
{
    Running game;
    game.window.prfSound = false;
    announceEndOfSession();
    EXPECT_EQ(game.settings["prfSound"], "False");
    EXPECT_TRUE(game.ends.empty());
    game.window.close(); // would wait for the exit screen for ever
    EXPECT_THAT(game.ends, ElementsAre(0));
}

TEST(Fault, aSessionThatGoesOnAfterAllBringsTheFarewellBack)
{
    Running game;
    announceEndOfSession();
    game.now += 120'000;
    bool shown = false;
    QTimer::singleShot(0, &game.window, [&shown] {
        auto* screen = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(screen, nullptr);
        shown = true;
        screen->reject();
    });
    game.window.close();
    EXPECT_TRUE(shown);
}

TEST(Fault, aPictureTakesNoMoreMemoryThanATableNeeds)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath("table.bmp");
    const auto trouble = [&path](const QByteArray& bytes) -> std::string {
        write(path, bytes);
        try {
            static_cast<void>(loadPictureFile(path));
        } catch (const RunTimeError& error) {
            return error.what();
        }
        return "none";
    };
    EXPECT_THAT(trouble(bitmapHead(16000, 16000)), HasSubstr("too large"));
    EXPECT_THAT(trouble(bitmapHead(9000, 1)), HasSubstr("too large"));
    EXPECT_THAT(trouble(bitmapHead(0, 0)), HasSubstr("Invalid picture"));
    EXPECT_THAT(trouble("GIF89a"), HasSubstr("Invalid picture"));
    EXPECT_THAT(trouble(QByteArray("\xff\xd8\xff", 3)), HasSubstr("Invalid picture"));
}

} // namespace quillet::test
