#include "charts/chart_player.h"
#include "odds_program/chart_card.h"
#include "odds_program/reports.h"
#include "tests/kit/file_text.h"
#include "tests/kit/held_cards.h"

#include <gmock/gmock.h>

#include <sstream>

namespace quillet::test
{

using namespace odds;
using namespace odds_program;

using testing::ContainsRegex;
using testing::HasSubstr;

namespace
{

using charts::Chart;

// The trainer's, the one without loss, and one of all rows, many of which never play.
std::vector<Chart> someCharts()
{
    Chart all;
    for (charts::RowKindId kind = charts::nothingRow() + 1 - charts::maxRows;
         kind <= charts::nothingRow(); ++kind)
        all.push_back({kind});
    return {charts::trainersChart(),
            charts::parseChart(fileText(QUILLET_CHARTS_FOLDER "/perfect.chart")), all};
}

std::string cardOf(const Chart& chart)
{
    std::ostringstream page;
    writeChartCard(page, chart, charts::priceChart(heldCards(), chart),
                   charts::rowExamples(heldCards(), chart), heldCards().pays());
    return page.str();
}

} // namespace

TEST(RowExamples, arePlayedByTheirRows)
{
    for (const Chart& chart : someCharts()) {
        const charts::ChartPlayer player(chart);
        const charts::ChartPrice price = charts::priceChart(heldCards(), chart);
        const auto examples = charts::rowExamples(heldCards(), chart);
        for (std::size_t row = 0; row < chart.size(); ++row) {
            ASSERT_EQ(examples[row].has_value(), price.rows[row].deals > 0) << rowText(chart[row]);
            if (!examples[row])
                continue;
            const charts::Play play = player.play(DealtHand(heldCards(), examples[row]->places));
            EXPECT_EQ(play.row, row);
            EXPECT_NE(play.fitting >> examples[row]->held & 1U, 0U);
        }
    }
}

TEST(ChartCard, hasEveryRowAndTheReturn)
{
    for (const Chart& chart : someCharts()) {
        const std::string page = cardOf(chart);
        for (const charts::Row& row : chart)
            EXPECT_THAT(page, HasSubstr(". " + rowText(row) + "</title>"));
    }
    const std::string trainers = cardOf(charts::trainersChart());
    EXPECT_THAT(trainers, HasSubstr("Returns 99.294918 of 100. Loses 0.248986 against perfect"));
    EXPECT_THAT(trainers, HasSubstr("opacity='0.35'")) << "pale";
    EXPECT_THAT(trainers, ContainsRegex("font-size='2\\.2[^>]*>Pays")) << "fits the page";
    const auto royal = trainers.find("1. royal<");
    EXPECT_LT(trainers.find(">A</text>", royal), trainers.find(">10</text>", royal))
        << "aces first";
    std::ostringstream file;
    writeChartFile(file, charts::trainersChart(),
                   charts::priceChart(heldCards(), charts::trainersChart()));
    EXPECT_THAT(file.str(), testing::StartsWith("# 21 lines. Of every 100"));
    EXPECT_THAT(file.str(), HasSubstr("It returns\n# 99.29491793"));
}

} // namespace quillet::test
