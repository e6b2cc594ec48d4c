#include "screens/frm_exit_no_banner.h"
#include "table/picture_box.h"
#include "tests/kit/played_window.h"

#include <QGuiApplication>
#include <QSessionManager>
#include <gmock/gmock.h>

namespace quillet::test
{

TEST(Fault, isToldInTheProceduresOwnWordsAndThePlayGoesOn)
{
    struct Row {
        std::string failing;
        std::function<void(PlayedWindow&)> act;
        std::size_t boxes;
        std::string text;
    };
    const auto newGame = [](PlayedWindow& game) {
        game.waitsForDraw() ? game.choose("mnuPoker") : game.clickDeck();
    };
    const auto rows =
        std::to_array<Row>({{"decks", newGame, 1, "Error  in  showPokerHand (  the wind  )"},
                            {"",
                             [](auto& game) {
                                 game.pages.fails = true;
                                 game.window->picStatusBar_Click();
                             },
                             1, "statusclickthe wind"},
                            {"",
                             [&](auto& game) {
                                 game.usePicture();
                                 newGame(game);
                             },
                             1, "Error  in  initPokerScreen (  Invalid picture"},
                            {"",
                             [&](auto& game) {
                                 game.window->prfAnimation = true;
                                 game.window->prfAnimationDelay = 3'000'000;
                                 newGame(game);
                             },
                             5, "Error in AnimateCard  Overflow"}});
    for (const auto& [failing, act, boxes, text] : rows) {
        SCOPED_TRACE(text);
        PlayedWindow game;
        game.usePicture({674, 354});
        ASSERT_TRUE(game.start());
        game.failing = failing;
        act(game);
        EXPECT_EQ(game.errors.texts.size(), boxes);
        EXPECT_THAT(game.errors.texts, testing::Each(testing::StartsWith(text)));
        EXPECT_TRUE(control<PictureBox>(*game.window, "picDeal0").isShowing());
        game.failing.clear();
        const int hands = game.window->counters().hands;
        newGame(game);
        EXPECT_EQ(game.window->counters().hands, hands + 1);
        EXPECT_TRUE(game.waitsForDraw() && !game.window->handState().handBusy);
    }
}

TEST(Fault, anEndingSessionStoresTheSettingsAndShowsNoFarewellUnlessItGoesOn)
{
    // Only Qt can make a session manager. Nothing uses the content of this one.
    alignas(QSessionManager) static std::array<std::byte, sizeof(QSessionManager)> nobody;
    const auto announce = [] {
        emit qGuiApp->commitDataRequest(reinterpret_cast<QSessionManager&>(nobody));
    };
    PlayedWindow early;
    early.store.texts["prfAnimationDelay"] = "-1";
    std::string log = "=";
    QTimer::singleShot(0, [&] { announce(), log = early.store.log; });
    ASSERT_TRUE(early.start());
    EXPECT_EQ(log.find('='), std::string::npos) << "the speed was half measured";

    for (const bool goesOn : {false, true}) {
        StartedWindow game;
        game.window->prfSound = false;
        announce();
        EXPECT_EQ(game.store.texts["prfSound"], "False");
        EXPECT_TRUE(game.ended.empty());
        const auto close = [&game] { game.window->close(); };
        game.clock.now += goesOn ? 120'000 : 0;
        goesOn ? whileOpen<frmExitNoBanner>(close, [](auto&) {}) : close();
        EXPECT_EQ(game.ended, std::vector{0});
    }
}

} // namespace quillet::test
