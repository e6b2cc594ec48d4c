#include "main_window/chart_panel.h"
#include "main_window/frm_preferences.h"
#include "platform/colour_contrast.h"
#include "screens/frm_about.h"
#include "screens/frm_exit_no_banner.h"
#include "screens/web_pages.h"
#include "tests/kit/played_window.h"

#include <QAccessible>
#include <QFontMetricsF>
#include <QMenu>
#include <QPushButton>

namespace quillet::test
{

namespace
{

constexpr int longPause = 1000; // moments of a start, in milliseconds
constexpr int faceDown = 1700;

} // namespace

TEST(WindowEvents, clicksAndANewGameInAPauseDealOneFreshHand)
{
    for (const int moment : {longPause, faceDown}) {
        PlayedWindow game;
        game.in(moment, [&] {
            game.clickDeck();
            game.clickCard(0);
            doubleClick(game.part("picDeal0"));
            EXPECT_EQ(game.counters(), "-5/1/0") << "dealt once, by the click or before";
            game.choose("mnuPoker");
        });
        ASSERT_TRUE(game.start());
        EXPECT_EQ(game.counters(), "-10/2/0") << moment;
        EXPECT_TRUE(game.waitsForDraw());
    }
    StartedWindow game;
    game.draw("12");
    doubleClick(game.part("picDeal0"));
    EXPECT_EQ(game.counters(), "-5/2/1") << "a double click on the deck is one click";
    EXPECT_TRUE(game.waitsForDraw());
}

TEST(WindowEvents, theChartStandsStillWithRoomForAWiderFont)
{
    struct HideCounter : QObject {
        bool eventFilter(QObject*, QEvent* event) override
        {
            hidden += event->type() == QEvent::Hide ? 1 : 0;
            return false;
        }
        int hidden = 0;
    } counter;
    StartedWindow game;
    game.part("picPokerLabels").installEventFilter(&counter);
    const auto expectRoom = [](const frmMain& window, double growth) {
        for (const ChartRow* row : window.findChildren<ChartRow*>()) {
            const double advance = QFontMetricsF(row->font()).horizontalAdvance(row->text());
            EXPECT_LE(growth * advance, row->width() - ChartRow::markRoom)
                << qPrintable(row->text());
        }
    };
    expectRoom(*game.window, 1.05);
    game.choose("mnuPoker");
    EXPECT_EQ(counter.hidden, 0) << "a chart that is shown again flashes";
    QFont::insertSubstitution("MS Sans Serif", "DejaVu Sans Mono"); // letters shrink for it
    StartedWindow wide;
    expectRoom(*wide.window, 1);
    auto& longest = control<ChartRow>(*wide.window, "pkLabel18");
    const auto letters = [&longest](ChartRowState state) {
        longest.show({0xFFFFFF, 0}, state);
        return longest.grab(longest.rect().adjusted(12, 0, 0, 0)).toImage();
    };
    EXPECT_NE(letters(ChartRowState::winner), letters(ChartRowState::base)) << "clear of the mark";
    QFont::removeSubstitutions("MS Sans Serif");
}

TEST(WindowEvents, automaticDealingUntickedInItsPauseStops)
{
    PlayedWindow game;
    game.store.texts["prfPokerAutoDeal"] = "True";
    ASSERT_TRUE(game.start());
    game.in(1250 + 2000, [&] {
        whileOpen<frmPreferences>([&] { game.choose("mnuPref"); },
                                  [&](frmPreferences& dialog) {
                                      game.clickDeck(); // nothing is dealt beneath the dialog
                                      control<QAbstractButton>(dialog, "ckprfAutoDeal").click();
                                      click(control(dialog, "cmdSave"));
                                  });
    });
    game.draw("12");
    EXPECT_EQ(game.counters(), "0/1/1") << "no further hand";
    game.clickDeck();
    EXPECT_EQ(game.counters(), "-5/2/1") << "the deck is never dead";
}

TEST(WindowEvents, theSettingsAreWrittenOnceBeforeTheExitScreen)
{
    for (const char* way : {"mnuExit", "close box"}) {
        StartedWindow game;
        game.store.log.clear();
        const auto leave = [&] {
            way == std::string("mnuExit") ? game.choose(way) : void(game.window->close());
        };
        std::string saved;
        game.window->move(60, 40);
        const QPoint stood = game.window->geometry().center();
        whileOpen<frmExitNoBanner>(leave, [&](frmExitNoBanner& screen) {
            EXPECT_LE((screen.geometry().center() - stood).manhattanLength(), 8);
            saved = game.store.log;
            EXPECT_EQ(std::ranges::count(saved, '='), 12);
            EXPECT_FALSE(game.window->isVisible());
            EXPECT_TRUE(game.ended.empty());
            click(control(screen, "Command1"));
        });
        ASSERT_FALSE(game.ended.empty());
        EXPECT_EQ(game.ended[0], 0);
        EXPECT_EQ(game.store.log, saved) << "once";
        EXPECT_TRUE(game.pages.opened.empty());
    }
}

TEST(WindowEvents, aStoreThatFailsIsReportedAndNoExitScreenFollows)
{
    StartedWindow game;
    game.store.fails = true;
    game.window->close();
    EXPECT_EQ(game.errors.texts,
              std::vector<std::string>{"Error  in  Form_Unload (  Disk full  )"});
    EXPECT_EQ(game.ended, std::vector<int>{1});
    EXPECT_FALSE(game.window->isVisible());
}

TEST(WindowEvents, menusAndStatusBarOpenTheOnePage)
{
    StartedWindow game;
    for (const char* entry : {"mnuSites0", "mnuSites1", "mnuSites2", "mnuSites3", "mnuSites4"})
        game.choose(entry);
    QTest::mouseClick(game.window->windowHandle(), Qt::LeftButton, {},
                      game.placeOf("picStatusBar").topLeft() + QPoint(5, 5));
    EXPECT_EQ(game.pages.opened, std::vector<std::string>(6, onlinePokerPage()));
    click(game.part("lblstatus"));
    EXPECT_EQ(game.pages.opened.size(), 6U) << "the text in the bar is no link";
    QAccessible::queryAccessibleInterface(&game.part("picStatusBar"))
        ->actionInterface()
        ->doAction(QAccessibleActionInterface::pressAction());
    QCoreApplication::processEvents();
    EXPECT_EQ(game.pages.opened.size(), 7U) << "a screen reader presses the bar";
    game.pages.opened.pop_back();
    EXPECT_TRUE(QAccessible::queryAccessibleInterface(&game.part("picPoker0"))->state().checkable);
    EXPECT_TRUE(QAccessible::queryAccessibleInterface(&game.part("picDeal1"))->state().invisible);
    // A button released beside the widget does not click it.
    QWindow* const display = game.window->windowHandle();
    for (const char* pressed : {"picStatusBar", "picDeal0"}) {
        const QRect place = game.placeOf(pressed);
        QTest::mousePress(display, Qt::LeftButton, {}, place.topLeft() + QPoint(5, 5));
        QTest::mouseRelease(display, Qt::LeftButton, {}, place.topLeft() - QPoint(5, 5));
    }
    EXPECT_EQ(game.pages.opened.size(), 6U);
    EXPECT_TRUE(game.waitsForDraw());
    EXPECT_TRUE(game.sounds.names.size() == 5U) << "nobody asked to draw";

    game.window->move(60, 40);
    game.choose("mnuContents");
    const QRect help = control(*game.window, "HelpViewer").geometry();
    EXPECT_TRUE(game.window->screen()->availableGeometry().contains(help));
    EXPECT_GT(help.left(), game.window->x()) << "much of the table is still seen";

    auto& menu = control<QMenu>(*game.window, "mnuGame");
    menu.setPalette(QPalette(Qt::black));
    const QImage dark = menu.grab().toImage();
    const QPoint line =
        menu.actionGeometry(game.window->findChild<QAction*>("mnuSeparator")).center();
    EXPECT_GT(contrast(dark.pixelColor(line), dark.pixelColor(line - QPoint(0, 2))), 3);

    game.choose("mnuAbout");
    game.choose("mnuAbout");
    EXPECT_EQ(game.window->findChildren<frmAbout*>().size(), 1);
    game.draw("12");
    EXPECT_EQ(game.counters(), "0/1/1") << "the game goes on beside the box";
}

} // namespace quillet::test
