#include "tests/kit/played_game.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quillet::test
{

namespace
{

constexpr auto jacks = "Jc Jd 4h 7s 9c 2c 3d 5h 6s 8c";
constexpr auto trash = "2h 4s 6c 8d Th 3c 5d 7h 9s Kc";
constexpr auto royal = "As Ks Qs Js Ts 2c 3d 5h 6s 8c";

// One hand is on the table and waits for the draw.
void expectOneFreshDeal(const Game& game, int hands)
{
    EXPECT_TRUE(game.state.handDealt && game.state.judgePending && !game.state.handBusy);
    EXPECT_THAT(game.state.holdFlags, testing::Each(false));
    EXPECT_EQ(game.counters.hands, hands);
    EXPECT_TRUE(game.errors.texts.empty());
    EXPECT_EQ(game.log.count("wrong"), 0) << "nobody asked to draw";
}

} // namespace

TEST(Reentrancy, newGameInAnyPauseDealsOnce)
{
    enum { start, deal, draw, automatic };
    struct Row {
        int during, moment, hands;
        int layOuts, flights, faces, replacements; // seen
    };
    for (const Row& row :
         std::vector<Row>{{start, 100, 1, 2, 5, 1, 0},
                          {start, 800, 1, 2, 5, 1, 0},
                          {start, 1400, 1, 2, 5, 1, 0},
                          {deal, 300, 2, 1, 10, 1, 0}, // the lost hand stays face down
                          {draw, 300, 2, 1, 10, 2, 0},
                          {draw, 700, 2, 1, 13, 2, 0},
                          {draw, 950, 2, 1, 13, 2, 1},
                          {automatic, 2050, 2, 1, 15, 2, 1}}) {
        SCOPED_TRACE(testing::Message() << row.during << " at " << row.moment);
        Game game;
        game.prfPokerAutoDeal = row.during == automatic;
        if (row.during >= draw)
            game.deal(row.during == draw ? jacks : trash);
        game.in(row.moment, [&] { game.controller.initPokerScreen(); });
        if (row.during == start)
            game.controller.initPokerScreen();
        else if (row.during == deal)
            game.deal(jacks);
        else
            game.draw(row.during == draw ? "12" : "");
        expectOneFreshDeal(game, row.hands);
        EXPECT_EQ(game.counters.total, -5 * row.hands);
        EXPECT_EQ(game.counters.won, 0);
        EXPECT_EQ(game.log.count("layOut"), row.layOuts);
        EXPECT_EQ(game.log.count("deal"), row.flights);
        EXPECT_EQ(game.log.count("face0"), row.faces);
        EXPECT_EQ(game.log.count("hatch2"), row.replacements);
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

TEST(Reentrancy, aDeckClickBeforeTheFirstDealIsHeardWhenDealingIsByHand)
{
    for (const auto& [moment, automatic] : {std::pair{100, false}, {900, false}, {900, true}}) {
        Game game;
        game.prfPokerAutoDeal = automatic;
        game.in(moment, [&, byHand = !automatic] {
            game.click();
            EXPECT_EQ(game.state.handDealt, byHand);
            EXPECT_EQ(game.counters.hands, byHand ? 1 : 0);
            EXPECT_EQ(game.table.fadeStep, 25) << "the text does not stay dark";
        });
        game.controller.initPokerScreen();
        expectOneFreshDeal(game, 1);
    }
}

} // namespace quillet::test
