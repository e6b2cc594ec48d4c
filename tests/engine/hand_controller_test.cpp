#include "faults/run_time_error.h"
#include "tests/kit/played_game.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quillet::test
{

namespace
{

constexpr auto jacks = "Jc Jd 4h 7s 9c 2c 3d 5h 6s 8c"; // best play: the pair of jacks
constexpr auto jacksToTrips = "Jc Jd 4h 7s 9c 2c 3d Jh 6s 8c";
constexpr auto royal = "As Ks Qs Js Ts 2c 3d 5h 6s 8c";
constexpr auto fullHouse = "5c 5d 5h 9s 9c 2c 3d 4h 6s 8c";

} // namespace

TEST(HandController, aDealRunsInItsOrder)
{
    Game game;
    game.deal(jacks);
    EXPECT_EQ(game.log.text(), "total-5 fly0 deal fly1 deal fly2 deal fly3 deal fly4 deal "
                               "pause650 face0 face1 face2 face3 face4");
    EXPECT_EQ(game.state.hand, hand("Jc Jd 4h 7s 9c"));
    EXPECT_EQ(game.state.handCode, 11);
    EXPECT_TRUE(game.state.handDealt && game.state.judgePending && !game.state.handBusy);
    EXPECT_EQ(game.counters.hands, 1);
}

TEST(HandController, aDrawRunsInItsOrder)
{
    Game game;
    game.deal(jacksToTrips);
    game.log.clear();
    game.draw("12");
    EXPECT_EQ(game.log.text(),
              "hide2 hide3 hide4 hatch0 hatch1 pause600 fly2 deal fly3 deal fly4 deal "
              "pause250 hatch2 hatch3 hatch4 pause200 "
              "total10 smallWin pause500 total10");
    EXPECT_EQ(game.state.hand, hand("Jc Jd Jh 6s 8c"));
    EXPECT_EQ(game.counters.won, 1);
    EXPECT_EQ(game.chart.state(7), ChartRowState::winner);
    EXPECT_FALSE(game.state.handDealt || game.state.handBusy);
}

TEST(HandController, aNewGameFadesItsTextInAndDeals)
{
    Game game;
    game.controller.initPokerScreen();
    EXPECT_EQ(game.log.text().substr(0, 32), "layOut pause1000 total-5 fly0 de");
    EXPECT_EQ(game.clock.now, 25 * 20 + 1000 + 650);
}

TEST(HandController, theSecondDealFillsTheSlotsFromTheRightAfterAPause)
{
    Game game;
    game.deal(jacks);
    game.draw("12");
    game.log.clear();
    EXPECT_EQ(game.chart.state(10), ChartRowState::winner);
    game.deal(jacks);
    EXPECT_EQ(game.chart.state(10), ChartRowState::base);
    EXPECT_THAT(game.state.holdFlags, testing::Each(false));
    EXPECT_EQ(game.log.text().substr(0, 46), "hide0 hide1 hide2 hide3 hide4 pause600 total-5");
    EXPECT_THAT(game.log.text(), testing::HasSubstr("fly4 deal fly3"));
    game.controller.initPokerScreen();
    EXPECT_TRUE(game.state.dealReversed) << "a new game goes on in turn";
}

TEST(HandController, wrongHoldsAreRefusedWithTheirCues)
{
    Game game;
    game.deal(jacks);
    const Counters before = game.counters;
    for (const auto& [slots, cue] : {std::pair{"", "wrong"},
                                     {"1", "wrongOne"},
                                     {"34", "wrongTwo"},
                                     {"123", "wrong"},
                                     {"1234", "wrong"},
                                     {"12345", "wrong"}}) {
        game.log.clear();
        game.draw(slots);
        EXPECT_EQ(game.log.text(), cue) << slots;
        EXPECT_EQ(game.chart.state(10), ChartRowState::missedPlay);
        EXPECT_THAT(game.state.holdFlags, testing::Each(false));
        EXPECT_THAT(game.table.holds, testing::Each(false));
        EXPECT_TRUE(game.state.handDealt && game.state.judgePending && !game.state.handBusy);
    }
    game.draw("12");
    EXPECT_FALSE(game.state.handDealt);
    EXPECT_EQ(game.chart.state(10), ChartRowState::winner) << "the jacks stayed a pair";
    EXPECT_EQ(game.counters.total, before.total + 5);
    EXPECT_EQ(game.counters.hands, before.hands);
}

TEST(HandController, everyRowPaysInItsSteps)
{
    struct Row {
        const char* dealt;
        const char* held;
        int pays, steps;
        const char* cue;
        int pause = 500;
    };
    const auto rows = std::to_array<Row>({
        {royal, "12345", 4000, 160, "bigWin"},
        {"9s Ks Qs Js Ts 2c 3d 5h 6s 8c", "12345", 250, 10, "bigWin"},
        {"7c 7d 7h 7s 2c 3d 4h 5h 6s 8c", "1234", 125, 5, "bigWin"},
        {fullHouse, "12345", 45, 2, "bigWin"},
        {"Jc Qc Kc Ac 9d 2d 3d 5h 6s 8c", "1234", 30, 2, "bigWin"},
        {"4c 5d 6h 7s 8c 2c 3d 5h 6s Tc", "12345", 20, 2, "mediumWin"},
        {"5c 5d 5h 9s Kc 2c 3d 4h 6s 8c", "123", 15, 1, "smallWin"},
        {"3c 3d 9h 9s Kc 2c 4d 5h 6s 8c", "1234", 10, 1, "smallWin"},
        {jacks, "12", 5, 1, "smallWin", 200},
        {"Tc Td 4h 7s 9c 2c 3d 5h 6s 8c", "12", 0, 0, "", 0},
        {"2h 4s 6c 8d Th 3c 5d 7h 9s Jc", "", 0, 0, "", 0},
    });
    for (const Row& row : rows) {
        Game game;
        game.deal(row.dealt);
        const std::int64_t start = game.clock.now;
        game.draw(row.held);
        EXPECT_EQ(game.counters.total, row.pays - 5) << row.dealt;
        EXPECT_EQ(game.counters.won, row.pays > 0 ? 1 : 0) << row.dealt;
        EXPECT_EQ(game.log.count(row.cue), row.steps) << row.dealt;
        EXPECT_EQ(game.chart.colours(1).background == 0x00FF00, row.pays == 250) << row.dealt;
        EXPECT_EQ(game.clock.now - start, 600 + 250 + 200 + row.steps * row.pause) << row.dealt;
    }
}

TEST(HandController, countersStopAtTheirLimits)
{
    Game game;
    game.counters = {32760, 32767, 32767};
    game.deal(fullHouse);
    game.draw("12345");
    EXPECT_EQ(game.counters.total, 32767);
    EXPECT_EQ(game.counters.hands, 32767);
    EXPECT_EQ(game.counters.won, 32767);
    game.counters.total = -32766;
    game.deal(jacks);
    EXPECT_EQ(game.counters.total, -32768);
}

TEST(HandController, automaticDealingDealsTheNextHand)
{
    Game game;
    game.prfPokerAutoDeal = true;
    game.controller.initPokerScreen();
    EXPECT_EQ(game.counters.hands, 1);
    game.in(600 + 250 + 200 + 2400, [&] {
        EXPECT_EQ(game.counters.hands, 1);
        game.click();
        EXPECT_EQ(game.counters.hands, 1) << "a click is deaf in the long pause";
    });
    game.state.judgePending = false;
    game.draw("");
    EXPECT_EQ(game.counters.hands, 2);
    EXPECT_EQ(game.log.count("pause2500"), 1);
    EXPECT_TRUE(game.state.handDealt && game.state.judgePending && !game.state.handBusy);
    game.state.judgePending = false;
    game.in(600 + 250 + 200 + 2 * 500 + 1000, [&] {
        game.prfPokerAutoDeal = false;
        game.click();
        EXPECT_EQ(game.counters.hands, 3) << "no hand would come by itself";
    });
    game.draw("");
    EXPECT_EQ(game.counters.hands, 3);
    EXPECT_TRUE(game.state.handDealt && game.state.judgePending && !game.state.handBusy);
}

TEST(HandController, anErrorInAPauseLeavesNothingHalfDone)
{
    const auto fail = [] { throw RunTimeError("the wind"); };
    Game game;
    game.deal(royal);
    game.in(600 + 250 + 200 + 600, fail);
    game.draw("12345");
    game.in(100, fail);
    game.controller.initPokerScreen();
    EXPECT_EQ(game.errors.texts.size(), 2U);
    EXPECT_EQ(game.counters.total, -5 + 2 * 25) << "the rest is not paid with the next game";
    EXPECT_EQ(game.table.fadeStep, 25) << "the text does not stay dark";
}

} // namespace quillet::test
