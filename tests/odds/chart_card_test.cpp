#include "charts/chart_player.h"
#include "odds/chart_card.h"
#include "tests/kit/file_text.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cstdio>
#include <sstream>

namespace quillet::test
{

using testing::HasSubstr;

namespace
{

using charts::Chart;

const HeldCards& heldCards()
{
    static const HeldCards theHeldCards;
    return theHeldCards;
}

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

std::size_t countOf(const std::string& part, const std::string& text)
{
    std::size_t count = 0;
    for (auto at = text.find(part); at != std::string::npos; at = text.find(part, at + 1))
        ++count;
    return count;
}

// Whether every element that is opened is closed again in order, and no text needs an escape.
bool isWellFormed(const std::string& xml)
{
    std::vector<std::string> open;
    std::size_t tags = 0;
    for (auto at = xml.find('<'); at != std::string::npos; at = xml.find('<', at + 1), ++tags) {
        const std::string tag = xml.substr(at + 1, xml.find('>', at) - at - 1);
        const std::string name = tag.substr(0, tag.find(' '));
        if (countOf("\"", tag) != 2 * countOf("=\"", tag))
            return false;
        if (!tag.starts_with('/'))
            open.push_back(name);
        else if (open.empty() || '/' + open.back() != name)
            return false;
        if (tag.starts_with('/') || tag.ends_with('/'))
            open.pop_back();
    }
    return open.empty() && countOf(">", xml) == tags && countOf("&", xml) == 0;
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

TEST(ChartCard, hasEveryRowOnThePage)
{
    for (const Chart& chart : someCharts()) {
        const std::string page = cardOf(chart);
        std::size_t kept = 0, hands = 0;
        for (const auto& example : charts::rowExamples(heldCards(), chart)) {
            kept += example ? cardsIn[example->hold] : 0;
            hands += example ? 1 : 0;
        }
        EXPECT_TRUE(isWellFormed(page));
        EXPECT_EQ(countOf("class=\"row\"", page), chart.size());
        EXPECT_EQ(countOf("class=\"kept\"", page), kept);
        EXPECT_EQ(countOf("class=\"thrown\"", page), 5 * hands - kept);
        for (const charts::Row& row : chart)
            EXPECT_THAT(page, HasSubstr(". " + rowText(row) + "</title>"));
    }
    EXPECT_THAT(cardOf(charts::trainersChart()),
                HasSubstr("Returns 99.294918 of 100. Loses 0.248986 against perfect"));
}

TEST(ChartCard, keepsItsLettersWithinTheirColumns)
{
    constexpr double widest = 1.1; // of letters, as a share of their height
    constexpr double cardsLeft = 141.8;
    for (const Chart& chart : someCharts()) {
        std::size_t names = 0;
        std::istringstream lines(cardOf(chart));
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
}

} // namespace quillet::test
