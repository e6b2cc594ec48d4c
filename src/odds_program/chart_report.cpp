#include "odds/hand_text.h"
#include "odds_program/reports.h"

#include <array>
#include <ostream>
#include <utility>

namespace quillet::odds_program
{

namespace
{

using charts::Chart;
using charts::ChartPrice;
using charts::RowPrice;
using charts::Taken;

template <typename Kinds>
void listKinds(std::ostream& out, const Kinds& kinds)
{
    for (const auto& kind : kinds)
        out << kind.name << "\n"
            << "    " << wrapped(std::string(kind.meaning));
}

} // namespace

void reportRowKinds(std::ostream& out)
{
    listKinds(out, charts::rowKinds());
    out << "\nRows that the player may choose between share a line, with slashes between\n"
           "them, such as \"straight flush / 4 of a kind\".\n\nAfter a semicolon a row may list "
           "conditions on the discards, with commas between\n"
           "them, such as \"4 to a flush; no high, a 10\":\n\n";
    listKinds(out, charts::discardKinds());
}

std::string_view nameOf(Taken taken)
{
    constexpr std::array<std::string_view, charts::allTaken.size()> names{
        "Chart, best choice", "Chart, any choice", "Chart, worst choice"};
    return names[static_cast<std::size_t>(taken)];
}

Table returnsTable(const ChartPrice& price)
{
    Table table{"returns",
                "Credits returned for every 100 bet, for a fairly shuffled deck\n\n",
                {{"play", "Play"}, {"return", "Return"}},
                {{"Perfect play", percent(price.perfect.returned, 8)}}};
    for (const Taken taken : charts::allTaken)
        table.rows.push_back({nameOf(taken), percent(price.played[taken].returned, 8)});
    return table;
}

Report chartReport(const Chart& chart, const ChartPrice& price)
{
    std::string intro = "\n";
    intro += charts::countText(chart);
    intro += ". The loss of each row per 100 credits over all deals,\n"
             "taking the worst hold that fits its line, and its costliest deal\n\n";
    Table rows{"rows",
               intro,
               {{"row", "Row"},
                {"line", "Line"},
                {"deals", "Deals"},
                {"loss of best", ""},
                {"loss of any", ""},
                {"loss of worst", "Loss"},
                {"costliest deal", "Costliest deal"},
                {"costs", ""}}};
    std::string idle;
    std::int64_t line = 0;
    for (std::size_t row = 0; row < chart.size(); ++row) {
        line += chart[row].sharesLine ? 0 : 1;
        const RowPrice& priced = price.rows[row];
        std::vector<Cell> cells{charts::rowText(chart[row]), line, priced.deals};
        for (const odds::Fraction& loss : priced.loss)
            cells.emplace_back(percent(loss, 6));
        const charts::CostliestDeal& costliest = priced.costliest[Taken::worst];
        const bool costs = costliest.cost != odds::Fraction();
        cells.push_back(costs ? cards(costliest.places, odds::holdAll) : "");
        cells.emplace_back(exact(costliest.cost, 4));
        rows.rows.push_back(std::move(cells));
        if (priced.deals == 0)
            idle += "  " + wrapped(charts::rowText(chart[row]));
    }
    if (!idle.empty())
        rows.outro = "\nRows that never apply:\n" + idle;
    return {returnsTable(price), rows};
}

void writeChartFile(std::ostream& out, const Chart& chart, const ChartPrice& price)
{
    const odds::Fraction& returned = price.played[Taken::worst].returned;
    out << "# " << charts::countText(chart) << ". Of every 100 credits bet it loses "
        << (price.loss(Taken::worst) * 100).decimals(6)
        << "\n# against perfect play, taking the worst of the holds that fit. It returns\n# "
        << (returned * 100).decimals(8) << " % (" << returned.text() << ").\n"
        << charts::chartText(chart);
}

Report bestChartsReport(const std::vector<PricedChart>& found)
{
    Table table{"best charts",
                "Loss per 100 credits of the best chart found with at most that many lines,\n"
                "taking the worst of the holds that fit a line\n\n",
                {{"lines", "Lines"}, {"used", "Used"}, {"rows", "Rows"}, {"loss", "Loss"}}};
    for (const PricedChart& priced : found)
        table.rows.push_back({static_cast<std::int64_t>(priced.lines),
                              static_cast<std::int64_t>(charts::lineCount(priced.chart)),
                              static_cast<std::int64_t>(priced.chart.size()),
                              percent(priced.price.loss(Taken::worst), 6)});
    return {table};
}

void reportPlays(std::ostream& out, const odds::HeldCards& heldCards, const Chart& chart)
{
    out << "deal,hold\n";
    charts::forEachPlayedDeal(heldCards, chart, [&out](const charts::PlayedDeal& deal) {
        out << odds::holdText(deal.hand.places, odds::holdAll) << ','
            << (deal.worstHold == 0 ? "" : odds::holdText(deal.hand.places, deal.worstHold))
            << "\n";
    });
}

} // namespace quillet::odds_program
