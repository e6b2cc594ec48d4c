#include "tests/kit/played_game.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quillet::test
{

namespace
{

constexpr auto jacks = "Jc Jd 4h 7s 9c 2c 3d 5h 6s 8c";
constexpr auto royal = "As Ks Qs Js Ts 2c 3d 5h 6s 8c";

// One hand is on the table and waits, whatever came before.
void expectOneFreshDeal(const Game& game, int hands)
{
    EXPECT_TRUE(game.state.handDealt && game.state.judgePending && !game.state.handBusy);
    EXPECT_THAT(game.state.holdFlags, testing::Each(false));
    EXPECT_EQ(game.counters.hands, hands);
    EXPECT_TRUE(game.errors.texts.empty());
    EXPECT_EQ(game.log.count("wrong.wav"), 0) << "nobody asked to draw";
}

} // namespace

TEST(Reentrancy, newGameWhileDealingLosesTheHandAndDealsOnce)
{
    Game game;
    game.in(300, [&] { game.controller.initPokerScreen(); });
    game.deal(jacks);
    expectOneFreshDeal(game, 2);
    EXPECT_EQ(game.counters.total, -10);
    EXPECT_EQ(game.log.count("layOut"), 1);
    EXPECT_EQ(game.log.count("face0"), 1) << "the lost hand stays face down";
}

TEST(Reentrancy, newGameInEveryPauseOfADrawDealsOnce)
{
    for (const int moment : {300, 700, 950}) {
        Game game;
        game.deal(jacks);
        game.in(moment, [&] { game.controller.initPokerScreen(); });
        game.draw("12");
        expectOneFreshDeal(game, 2);
        EXPECT_EQ(game.counters.total, -10) << moment;
        EXPECT_EQ(game.counters.won, 0) << moment;
        EXPECT_EQ(game.log.count("hatch2"), moment < 950 ? 0 : 1) << moment;
    }
}

TEST(Reentrancy, newGameWhileAWinIsCountedCreditsTheRestAtOnce)
{
    Game game;
    game.deal(royal);
    game.in(1050 + 2250, [&] {
        EXPECT_EQ(game.counters.total, -5 + 5 * 25);
        game.controller.initPokerScreen();
        EXPECT_EQ(game.counters.total, 3995);
        EXPECT_EQ(game.counters.won, 1);
    });
    game.draw("12345");
    expectOneFreshDeal(game, 2);
    EXPECT_EQ(game.counters.total, 3990);
    EXPECT_EQ(game.counters.won, 1);
}

TEST(Reentrancy, newGameInTheFadeOrTheLongPausesDealsOnce)
{
    for (const int moment : {100, 800, 1400}) {
        Game game;
        game.in(moment, [&] { game.controller.initPokerScreen(); });
        game.controller.initPokerScreen();
        expectOneFreshDeal(game, 1);
        EXPECT_EQ(game.log.count("layOut"), 2);
    }
    Game game;
    game.prfPokerAutoDeal = true;
    game.controller.initPokerScreen();
    game.state.judgePending = false;
    game.in(1050 + 1000, [&] { game.controller.initPokerScreen(); });
    game.draw("");
    expectOneFreshDeal(game, 2);
}

TEST(Reentrancy, aClickRightAfterAskingForANewGameDealsNoHandInBetween)
{
    for (const bool automatic : {false, true}) {
        Game game;
        game.prfPokerAutoDeal = automatic;
        game.in(300, [&] {
            game.controller.initPokerScreen();
            game.click();
        });
        game.deal(jacks);
        expectOneFreshDeal(game, 2);
    }
}

TEST(Reentrancy, gamesAskedForOneAfterAnotherDoNotPileUp)
{
    Game game;
    for (int i = 1; i <= 2000; ++i)
        game.in(10 * i, [&] { game.controller.initPokerScreen(); });
    game.controller.initPokerScreen();
    EXPECT_TRUE(game.state.handDealt);
    EXPECT_LE(game.counters.hands, 20);
}

TEST(Reentrancy, aDeckClickBeforeTheFirstDealDealsOnceWhenDealingByHand)
{
    for (const int moment : {100, 900}) {
        Game game;
        game.in(moment, [&] {
            game.click();
            EXPECT_TRUE(game.state.handDealt) << "the click is heard";
            EXPECT_EQ(game.screen.fadeStep, 25) << "the text does not stay dark";
        });
        game.controller.initPokerScreen();
        expectOneFreshDeal(game, 1);
    }
}

TEST(Reentrancy, aDeckClickBeforeTheFirstDealWaitsForTheAutomaticOne)
{
    Game game;
    game.prfPokerAutoDeal = true;
    game.in(900, [&] {
        game.click();
        EXPECT_EQ(game.counters.hands, 0);
    });
    game.controller.initPokerScreen();
    expectOneFreshDeal(game, 1);
}

} // namespace quillet::test
