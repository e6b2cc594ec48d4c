#include "charts/chart_player.h"
#include "odds_program/chart_card.h"
#include "odds_program/chart_report.h"
#include "tests/kit/file_text.h"
#include "tests/kit/held_cards.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cstdio>
#include <sstream>

namespace quillet::test
{

using namespace odds;
using namespace odds_program;

using testing::HasSubstr;

namespace
{

using charts::Chart;

// The trainer's, the one without loss, and one of all rows, long and with many that never play.
std::vector<Chart> someCharts()
{
    Chart all;
    for (charts::RowKindId kind = charts::nothingRow() + 1 - charts::mostRows;
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
    const charts::HoldTable table(heldCards());
    for (const Chart& chart : someCharts()) {
        const charts::ChartPlayer player(table, chart);
        const charts::ChartPrice price = charts::priceChart(heldCards(), chart);
        const auto examples = charts::rowExamples(heldCards(), chart);
        for (std::size_t row = 0; row < chart.size(); ++row) {
            ASSERT_EQ(examples[row].has_value(), price.rows[row].deals > 0) << rowText(chart[row]);
            if (!examples[row])
                continue;
            const charts::Play play = player.play(DealtHand(heldCards(), examples[row]->places));
            EXPECT_EQ(play.row, row);
            EXPECT_NE(play.fitting >> examples[row]->hold & 1U, 0U);
        }
    }
}

TEST(ChartCard, hasEveryRowWithinItsColumns)
{
    constexpr double widest = 1.1; // of letters, as a share of their height
    constexpr double cardsLeft = 141.8;
    for (const Chart& chart : someCharts()) {
        const std::string page = cardOf(chart);
        for (const charts::Row& row : chart)
            EXPECT_THAT(page, HasSubstr(". " + rowText(row) + "</title>"));
        std::size_t names = 0;
        std::istringstream lines(page);
        for (std::string line; std::getline(lines, line);) {
            double x = 0, y = 0, height = 0;
            const auto letter = line.rfind(" x=\"");
            if (!line.starts_with("<g fill") || letter == std::string::npos)
                continue;
            ASSERT_EQ(std::sscanf(line.c_str() + line.find("translate"),
                                  "translate(%lf %lf) scale(%lf)", &x, &y, &height),
                      3);
            const bool isName = y > 43 && y < 274 && x < cardsLeft;
            names += isName ? 1 : 0;
            EXPECT_LE(x + height * (std::stod(line.substr(letter + 4)) + widest),
                      isName ? cardsLeft : 199);
            EXPECT_GE(std::min(x, y), 12);
            EXPECT_LE(y + height, 287);
        }
        EXPECT_EQ(names, 2 * chart.size()) << "with the number of the row";
    }
    const std::string trainers = cardOf(charts::trainersChart());
    EXPECT_THAT(trainers, HasSubstr("Returns 99.294918 of 100. Loses 0.248986 against perfect"));
    EXPECT_THAT(trainers, HasSubstr("\"thrown\" opacity=")) << "pale";
    const auto royal = trainers.find("1. royal<");
    EXPECT_LT(trainers.find("#r1\"", royal), trainers.find("#r13\"", royal)) << "aces first";
    std::ostringstream file;
    writeChartFile(file, charts::trainersChart(),
                   charts::priceChart(heldCards(), charts::trainersChart()));
    EXPECT_THAT(file.str(), HasSubstr("It returns\n# 99.29491793"));
}

} // namespace quillet::test
