#include "charts/chart_price.h"
#include "charts/chart_search.h"
#include "charts/mistakes.h"
#include "engine/hand_evaluation.h"
#include "odds/bad_input.h"
#include "odds/hand_text.h"
#include "tests/kit/cards.h"
#include "tests/kit/file_text.h"
#include "tests/kit/held_cards.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cstring>
#include <random>
#include <utility>

namespace quillet::charts::test
{

namespace
{

using namespace quillet::test;

std::string complaintAbout(std::string_view text)
{
    try {
        (void)parseChart(text);
        return "none";
    } catch (const odds::BadInput& error) {
        return error.what();
    }
}

// Of those that are shipped.
Chart chartIn(const char* name)
{
    return parseChart(fileText(std::string(QUILLET_CHARTS_FOLDER "/") + name));
}

} // namespace

TEST(Chart, isReadAsAPersonWritesIt)
{
    const Chart chart = parseChart("# mine\n  High  Pair # best\r\n\n2 high, suited\nnothing");
    EXPECT_EQ(chartText(chart), "high pair\n2 high, suited\nnothing\n");
    EXPECT_EQ(parseChart("high pair").size(), 2U) << "and nothing";
    EXPECT_EQ(complaintAbout("ace\n4 to a flsh\n"),
              "line 2: there is no row \"4 to a flsh\"; the nearest are \"4 to a flush\", "
              "\"3 to a flush\", \"4 to a royal\"");
    EXPECT_EQ(chartText(parseChart("4 to a flush ;A  10,no high\nnothing; no ace")),
              "4 to a flush; no high, a 10\nnothing; no ace\nnothing\n");
    EXPECT_EQ(complaintAbout("ace; no high, no flsh card"),
              "line 1: there is no condition \"no flsh card\"; the nearest are \"no flush card\", "
              "\"a flush card\", \"no straight card\"");
    const std::string lines = "4 to a flush; no high, a 10 / 4 to a straight flush / 2 pair\n"
                              "    / high pair; no straight card, no 8\nace / nothing\n";
    EXPECT_EQ(chartText(parseChart(lines)), lines);
    EXPECT_EQ(countText(parseChart(lines)), "2 lines (6 rows)");
    for (const char* text : {"ace /", "ace // king", "/ ace", "ace\n/", "ace; /"})
        EXPECT_THAT(complaintAbout(text), testing::HasSubstr("there is no ")) << text;
    EXPECT_EQ(complaintAbout("# only\n"), "there is no row in it");
    std::string longChart;
    for (int i = 0; i < 65; ++i)
        longChart += "ace\n";
    EXPECT_EQ(complaintAbout(longChart), "line 65: a chart has no more than 64 rows");
    for (const RowKind& kind : rowKinds())
        EXPECT_EQ(rowKinds()[*findRowKind(kind.name)].name, kind.name) << "twice";
    for (const DiscardKind& kind : discardKinds())
        EXPECT_EQ(discardKinds()[*findDiscardKind(kind.name)].name, kind.name) << "twice";
}

TEST(DiscardKinds, tellWhatIsThrownAway)
{
    const auto shown = [](std::string_view hand, odds::Hold hold) {
        odds::DealtHand dealt(heldCards(), odds::parseHand(hand));
        std::string text;
        for (DiscardSet asked = 1; asked < 1U << discardKinds().size(); asked <<= 1U) {
            if (allows({nothingRow(), asked}, dealt, hold))
                text += rowText({nothingRow(), asked}).substr(std::strlen("nothing; ")) + '|';
        }
        return text;
    };
    constexpr odds::Hold firstTwo = 3;
    EXPECT_EQ(shown("JcQc9c9h2d", firstTwo),
              "a flush card|a straight card|at most 1 straight card|no high|no ace|no king|"
              "no queen|no jack|no 10|a 9|no 8|no lower high|");
    EXPECT_EQ(shown("JcQhThAc2c", firstTwo),
              "no flush card|a straight card|a high|an ace|no king|no queen|no jack|a 10|no 9|"
              "no 8|no pair|no lower high|");
    EXPECT_EQ(shown("8cKcJcQc7c", 0),
              "no flush card|no straight card|at most 1 straight card|a high|no ace|a king|"
              "a queen|a jack|no 10|no 9|no pair|no lower high|");
}

TEST(Chart, ofTheTrainerPlaysAndIsPricedAsTheCoachDoes)
{
    const Chart& chart = trainersChart();
    EXPECT_EQ(chartIn("trainer.chart"), chart);
    forEachPlayedDeal(heldCards(), chart, [](const PlayedDeal& deal) {
        std::array<Card, 5> cards;
        std::ranges::transform(deal.hand.places, cards.begin(), odds::cardAt);
        const std::int16_t code = EvaluatePokerHand(cards, false);
        std::uint32_t accepted = 0;
        for (odds::Hold hold = 0; hold < odds::holds; ++hold)
            accepted |= isCorrectHold(cards, holdFlags(hold), code) ? 1U << hold : 0;
        ASSERT_EQ(static_cast<int>(deal.play.row) + 1, code)
            << odds::holdText(deal.hand.places, odds::holdAll);
        ASSERT_EQ(deal.play.fitting, accepted) << odds::holdText(deal.hand.places, odds::holdAll);
    });
    const ChartPrice price = priceChart(heldCards(), chart);
    EXPECT_EQ(price.perfect.returned.text(), "1653526326983/1661102543100");
    EXPECT_EQ(price.played[Taken::best].returned.text(), "149999803741/151009322100");
    EXPECT_EQ(price.played[Taken::any].returned.text(), "449889582859/453027966300");
    EXPECT_EQ(price.played[Taken::worst].returned.text(), "149944582453/151009322100");
    std::int64_t deals = 0;
    for (const RowPrice& row : price.rows)
        deals += row.deals;
    EXPECT_EQ(deals, 2598960);
}

// A separate program that dealt and drew every hand got the same figures.
TEST(ChartPrice, comesOutAsKnown)
{
    // Many rows in no order, each but every third asking something.
    std::mt19937 random(3);
    Chart mixed;
    for (RowKindId kind = 30, other = 30; kind < nothingRow(); ++kind) {
        if (kind != findRowKind("3 to a straight flush, 7 to jack")) // not known to that program
            mixed.push_back({kind, other++ % 3 == 0 ? 0 : DiscardSet{1} << random() % 21});
    }
    std::shuffle(mixed.begin(), mixed.end(), random);
    mixed.resize(45);
    mixed.push_back({nothingRow()});
    const auto returns = [](const Chart& chart, const char* pays) {
        std::string text;
        for (const odds::FairOdds& odds :
             priceChart(odds::HeldCards(odds::parsePays(pays)), chart).played)
            text += odds.returned.text() + " ";
        return text;
    };
    EXPECT_EQ(returns(mixed, "9/6"),
              "34717065707/75504661050 1355039095987/2968779013200 565870573993/1245826907325 ");
    EXPECT_EQ(returns(mixed, "8/5"),
              "1124368505591/2491653814650 694513553037/1550362373560 740572318141/1661102543100 ");
    EXPECT_EQ(returns(trainersChart(), "8/5"),
              "146713092989/151009322100 176011809163/181211186520 36664479976/37752330525 ");
}

TEST(Chart, letsThePlayerChooseAmongTheRowsOfALine)
{
    const auto player = [](const char* text) { return ChartPlayer(parseChart(text)); };
    const ChartPlayer line = player("1 high / ace; a king / low pair\nnothing"),
                      high = player("1 high\nnothing"), low = player("low pair\nnothing");
    odds::forEachDeal(heldCards(), [&](const odds::DealtHand& hand, int) {
        odds::HoldSet either = 0;
        for (const ChartPlayer* alone : {&high, &low}) {
            const Play play = alone->play(hand);
            either |= play.row == 0 ? play.fitting : 0;
        }
        ASSERT_EQ(line.play(hand).fitting, either == 0 ? 1U : either);
    });
    Chart apart = chartIn("perfect.chart");
    EXPECT_EQ(countText(apart), "26 lines (34 rows)");
    for (Row& row : apart)
        row.sharesLine = false;
    EXPECT_EQ(priceChart(heldCards(), apart).loss(Taken::worst), odds::Fraction());
    EXPECT_THROW((void)priceChart(heldCards(), parseChart("1 high / 2 high / 3 high / 4 high / "
                                                          "high pair / 3 of a kind / nothing")),
                 odds::BadInput);
}

TEST(Chart, withoutLossPlaysAllDealsPerfectly)
{
    const Chart chart = chartIn("perfect.chart");
    const ChartPrice price = priceChart(heldCards(), chart);
    for (const odds::FairOdds& odds : price.played)
        EXPECT_EQ(odds.returned.text(), "1653526326983/1661102543100");
    for (std::size_t row = 0; row < chart.size(); ++row)
        EXPECT_GT(price.rows[row].deals, 0) << rowText(chart[row]);
    EXPECT_THAT(
        fileText(QUILLET_DOCUMENT),
        testing::HasSubstr("perfect.chart`, has " + std::to_string(chart.size()) + " rows"));
}

TEST(Mistakes, addUpToWhatTheChartLoses)
{
    const ChartPrice price = priceChart(heldCards(), trainersChart());
    std::int64_t deals = 0;
    odds::Fraction cost;
    const std::vector<Mistake> mistakes = mistakesOf(heldCards(), trainersChart());
    for (const Mistake& mistake : mistakes) {
        deals += mistake.deals;
        cost = cost + mistake.cost;
    }
    EXPECT_EQ(deals, 85848);
    EXPECT_EQ(cost, price.loss(Taken::best));
    EXPECT_EQ(mistakes.size(), 14U);
    EXPECT_EQ(mistakes[4].row, "3 to a royal");
    EXPECT_EQ(mistakes[4].instead, "4 to a straight flush");
    EXPECT_EQ(odds::holdText(mistakes[4].example, mistakes[4].best), "9c Tc Jc Kc");
    EXPECT_EQ(mistakes[4].costliest.decimals(4), "5.7724");
}

TEST(ChartSearch, findsLongerChartsThatLoseLess)
{
    for (const auto& [pays, most] : {std::pair{"9/6", 0.0010}, {"8/5", 0.0017}}) {
        const odds::HeldCards held(odds::parsePays(pays));
        const auto lossOf = [&held](const Chart& chart) {
            return 100 * priceChart(held, chart).loss(Taken::worst).value();
        };
        const ChartSearch search(held);
        double before = 100;
        for (std::size_t lines = 1; lines <= 24; ++lines) {
            EXPECT_LE(lineCount(search.best(lines)), lines);
            const double loss = lossOf(search.best(lines));
            EXPECT_LE(loss, before) << pays << ", " << lines;
            before = loss;
        }
        EXPECT_LT(before, most) << pays;
        Chart apart = search.best(18);
        for (Row& row : apart)
            row.sharesLine = false;
        EXPECT_EQ(lossOf(apart), lossOf(search.best(18))) << "sharing lines costs nothing";
        const Chart& chart = search.best(5);
        for (std::size_t row = 0; row + 1 < chart.size(); ++row) {
            Chart without = chart;
            without.erase(without.begin() + static_cast<std::ptrdiff_t>(row));
            without.front().sharesLine = false;
            EXPECT_GT(lossOf(without), lossOf(chart)) << rowText(chart[row]);
        }
    }
}

} // namespace quillet::charts::test
