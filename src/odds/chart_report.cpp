#include "odds/chart_report.h"

#include "odds/columns.h"
#include "odds/hand_text.h"

#include <array>
#include <ostream>

namespace quillet
{

namespace
{

using charts::Chart;
using charts::ChartPrice;
using charts::RowPrice;
using charts::Taken;

constexpr std::array<std::string_view, charts::waysToTake> takenNames{
    "Best of the holds that fit", "Any of them", "Worst of them"};
constexpr std::array<std::string_view, charts::waysToTake> takenWords{"best", "any", "worst"};

const Fraction& lossOf(const RowPrice& row, Taken taken)
{
    return row.loss[static_cast<std::size_t>(taken)];
}

std::string_view nameOf(const Chart& chart, std::size_t row)
{
    return charts::rowKinds()[chart[row]].name;
}

void writeText(std::ostream& out, const Chart& chart, const ChartPrice& price)
{
    out << "Of 100 credits come back, for a fairly shuffled deck\n\n  " << left("Perfect play", 30)
        << right((price.perfect * 100).decimals(8), 14) << "\n";
    for (std::size_t way = 0; way < charts::waysToTake; ++way)
        out << "  " << left(takenNames[way], 30)
            << right((price.returned[way] * 100).decimals(8), 14) << "\n";
    out << "\nWhat each row loses of 100 credits over all deals, the worst hold taken,\n"
           "and the deal that costs most credits\n\n"
        << left("Row", 48) << right("Deals", 8) << right("Loss", 9) << " Costliest deal\n";
    for (std::size_t row = 0; row < chart.size(); ++row) {
        const RowPrice& told = price.rows[row];
        out << left(nameOf(chart, row), 48)
            << right(told.deals == 0 ? "never" : std::to_string(told.deals), 8);
        if (lossOf(told, Taken::worst) != Fraction())
            out << right((lossOf(told, Taken::worst) * 100).decimals(6), 9) << ' '
                << holdText(told.example, holdAll);
        out << "\n";
    }
}

void writeCsv(std::ostream& out, const Chart& chart, const ChartPrice& price)
{
    out << "row,deals,loss best,loss any,loss worst,costliest deal,costs\n";
    for (std::size_t row = 0; row < chart.size(); ++row) {
        const RowPrice& told = price.rows[row];
        out << '"' << nameOf(chart, row) << "\"," << told.deals;
        for (const Fraction& loss : told.loss)
            out << ',' << loss.text();
        const bool plays = told.deals > 0;
        out << ',' << (plays ? holdText(told.example, holdAll) : "") << ',' << told.costliest.text()
            << "\n";
    }
    out << "perfect,,,,,," << price.perfect.text() << "\n";
    for (std::size_t way = 0; way < charts::waysToTake; ++way)
        out << "return " << takenWords[way] << ",,,,,," << price.returned[way].text() << "\n";
}

} // namespace

void reportRowKinds(std::ostream& out)
{
    for (const charts::RowKind& kind : charts::rowKinds())
        out << kind.name << "\n    " << kind.meaning << "\n";
}

void reportChart(std::ostream& out, const Chart& chart, const ChartPrice& price, Format format)
{
    if (format == Format::csv)
        writeCsv(out, chart, price);
    else
        writeText(out, chart, price);
}

void writeChartFile(std::ostream& out, const Chart& chart, const ChartPrice& price)
{
    out << "# " << chart.size() << " rows. Of 100 credits it loses "
        << (price.loss(Taken::worst) * 100).decimals(6)
        << " against perfect play,\n# when of holds that fit a row the worst is taken; it returns "
        << price.returned[static_cast<std::size_t>(Taken::worst)].text() << ".\n"
        << charts::chartText(chart);
}

void reportPlays(std::ostream& out, const HeldCards& heldCards, const Chart& chart)
{
    out << "deal,hold\n";
    charts::forEachPlayedDeal(heldCards, chart, [&out](const charts::PlayedDeal& deal) {
        out << holdText(deal.hand.places, holdAll) << ','
            << (deal.worstHold == 0 ? "" : holdText(deal.hand.places, deal.worstHold)) << "\n";
    });
}

} // namespace quillet
