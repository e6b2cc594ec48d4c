#include "odds/fair_odds.h"
#include "odds/hand_text.h"
#include "practice/answer.h"
#include "practice/reason.h"
#include "practice/standard.h"
#include "tests/kit/file_text.h"
#include "tests/kit/practice_game.h"

#include <gmock/gmock.h>

#include <cmath>
#include <sstream>

namespace quillet::practice::test
{

namespace
{

odds::DealtHand dealt(std::string_view cards)
{
    return {game().heldCards, odds::heldDeal(odds::parseHand(cards), 0).places};
}

} // namespace

TEST(Decisions, haveTheExactFiguresOfTheGame)
{
    EXPECT_EQ(decisions().all().size(), 94U);
    std::int64_t deals = 0;
    std::array<int, 2> close{}; // deals with a lead under half a credit and under one
    for (DecisionId id = 0; id < decisions().all().size(); ++id) {
        const Decision& decision = decisions()[id];
        deals += decision.deals;
        std::int64_t members = 0;
        for (const DealClass& deal : decisions().deals(id)) {
            members += deal.members;
            const odds::DealtHand hand(game().heldCards, deal.places);
            const DealtDecision met = decisions().of(hand);
            EXPECT_EQ(decisions().idOf(met), id);
            const std::int64_t lead = hand.worth[hand.bestHold] - hand.worth[met.rivalHold];
            close[0] += 2 * lead < odds::DealtHand::worthUnit ? deal.members : 0;
            close[1] += lead < odds::DealtHand::worthUnit ? deal.members : 0;
        }
        EXPECT_EQ(members, decision.deals) << decision.name();
        EXPECT_EQ(decisions().find(decision.name()), id);
    }
    EXPECT_EQ(deals, odds::FairOdds::deals);
    EXPECT_NEAR(100.0 * close[0] / odds::FairOdds::deals, 22.9, 0.05);
    EXPECT_NEAR(100.0 * close[1] / odds::FairOdds::deals, 43.9, 0.05);
    EXPECT_NEAR(decisions().perfectReturn(), 0.9954390437, 1e-10);
    EXPECT_NEAR(decisions().chartReturn(), 0.9933148607, 1e-10);

    const auto figures = [&](std::string_view name) {
        const Decision& decision = decisions()[decisions().find(name).value()];
        return std::array{std::round(decision.probability() * 1e5),
                          std::round(decision.lead() * 1e3)};
    };
    EXPECT_EQ(figures("2 high over 1 high"), (std::array{16596.0, 228.0}));
    EXPECT_EQ(figures("3 to a royal over 4 to a flush"), (std::array{333.0, 345.0}));
    EXPECT_EQ(figures("high pair over 3 to a royal"), (std::array{401.0, 794.0}));
    EXPECT_EQ(figures("low pair over 4 to an outside straight"), (std::array{413.0, 640.0}));
}

TEST(Answer, saysWhatAWrongHoldLooksLike)
{
    const odds::DealtHand hand = dealt("2c 2d 9d Kh 7s");
    const Answer kicker = answerTo(decisions(), hand, 0b01011);
    const Answer king = answerTo(decisions(), hand, 0b01000);
    EXPECT_EQ(decisions()[kicker.decision].name(), "low pair over 1 high");
    EXPECT_TRUE(answerTo(decisions(), hand, 0b00011).isRight());
    EXPECT_EQ(kicker.mistake, Mistake::wild);
    EXPECT_EQ(king.mistake, Mistake::rival);
    EXPECT_EQ(answerTo(decisions(), hand, 0).mistake, Mistake::other);
    EXPECT_GT(king.cost, kicker.cost);
    const DealtDecision none = decisions().of(dealt("2c 4d 6h 8s Tc"));
    EXPECT_EQ(decisions()[decisions().idOf(none)].name(), "nothing over other cards");
}

TEST(Standard, saysWhatIsRightAndWhatTheChartGivesAway)
{
    const odds::DealtHand hand = dealt("9c Tc Jc Kc Ad");
    const odds::Hold three = 0b01110;
    const Judgement perfect = Standard().judge(hand, three);
    EXPECT_FALSE(perfect.right);
    EXPECT_EQ(perfect.cost.decimals(4), "5.7724");
    EXPECT_EQ(perfect.chartCost, odds::Fraction());
    const Standard chart(charts::trainersChart());
    EXPECT_TRUE(chart.judge(hand, three).right);
    EXPECT_EQ(chart.judge(hand, three).chartCost.decimals(4), "5.7724");
    EXPECT_FALSE(chart.judge(hand, hand.bestHold).right);
    EXPECT_EQ(chart.judge(hand, hand.bestHold).cost, odds::Fraction());
    EXPECT_EQ(chart.row(hand), "3 to a royal");
    const std::string lossless = quillet::test::fileText(QUILLET_CHARTS_FOLDER "/perfect.chart");
    EXPECT_EQ(Standard(charts::parseChart(lossless)).row(hand), "4 to a straight flush");
    // All holds of the same worth are right.
    const odds::DealtHand four = dealt("2c 9c 9d 9h 9s");
    EXPECT_TRUE(Standard().judge(four, odds::holdAll).right);
    EXPECT_TRUE(Standard().judge(four, 0b11110).right);
}

TEST(Reason, splitsTheDifferenceByFinalHand)
{
    const auto told = [](std::string_view cards, odds::Hold better, odds::Hold worse) {
        return reason(game().heldCards, dealt(cards), better, worse);
    };
    EXPECT_EQ(told("9c Tc Jc Kc Ad", 0b01111, 0b01110),
              "4 to a straight flush is worth 12.34 credits, 3 to a royal 6.57: straight flushes "
              "bring 5.31 more, flushes 4.14 more and straights 0.85 more, royals 3.70 less and "
              "other hands 0.83 less.");
    EXPECT_EQ(told("Ac 9c Jd Qh Ks", 0b01100, 0b11000),
              "Jd Qh is worth 2.39 credits, Qh Ks 2.33: straights bring 0.06 more.");
    EXPECT_EQ(told("2c 9c 9d 9h 9s", 0b11110, 0b11111),
              "4 of a kind is worth 125.00 credits, 2c 9c 9d 9h 9s as much.");
    EXPECT_THAT(told("2c Tc 4d 6h 8s", 0, 1), testing::StartsWith("Nothing is worth 1.79 "));
}

TEST(Reason, hasFiguresThatAddUp)
{
    for (const char* cards :
         {"9c Tc Jc Kc Ad", "Ac 7c Jd Qh Ks", "2c 7d Ts 9h 4c", "Jc Jd 3c 4c 5c"}) {
        const odds::DealtHand hand = dealt(cards);
        for (odds::Hold worse = 0; worse < odds::holds; ++worse) {
            const std::string text = reason(game().heldCards, hand, hand.bestHold, worse);
            double sum = 0;
            std::istringstream words(text);
            for (std::string word, before; words >> word; before = word) {
                if (word == "credits," || word.starts_with("less"))
                    sum += std::stod(before);
                else if (word.starts_with("more"))
                    sum -= std::stod(before);
                else if (word.ends_with(':'))
                    sum -= std::stod(word);
            }
            EXPECT_TRUE(text.ends_with("as much.") || std::abs(sum) < 1e-9) << text;
        }
    }
}

} // namespace quillet::practice::test
