#include "odds_program/chart_card.h"

#include "odds_program/svg.h"

#include <algorithm>
#include <array>
#include <functional>
#include <ostream>
#include <string_view>
#include <utility>

namespace quillet::odds_program
{

namespace
{

using charts::Chart;
using charts::ChartPrice;
using charts::RowExample;
using charts::Taken;

// Lengths are millimetres.
constexpr double pageWidth = 210;
constexpr double pageHeight = 297;
constexpr double margin = 12;
constexpr double right = pageWidth - margin;
constexpr double plateHeight = 27;
constexpr double rowsTop = margin + plateHeight + 4;
constexpr double rowsBottom = pageHeight - margin - 10;
constexpr double maxRowHeight = 11.5;
constexpr double cardWidth = 10.5;
constexpr double cardGap = 0.9;
constexpr double handWidth = 5 * cardWidth + 4 * cardGap;
constexpr double namesRight = right - handWidth - 3;
constexpr double namesLeft = margin + 8;

constexpr std::string_view paper = "#fffdf7";
constexpr std::string_view plate = "#22130b";
constexpr std::string_view brass = "#f2d79a";
constexpr std::string_view darkBrass = "#b98d45";
constexpr std::string_view ivory = "#f8efdb";
constexpr std::string_view wood = "#6b3a1c";

// The colours of the chart beside the trainer's table, row by row.
struct RowColours {
    std::string_view ground;
    std::string_view letters;
};
constexpr std::array<RowColours, 2> rowColours{{{"#808080", "#ffffff"}, {"#e0e0e0", "#000000"}}};

std::string rectangle(double x, double y, double width, double height, std::string_view fill,
                      std::string_view stroke = "none")
{
    return svg("<rect x=\"@\" y=\"@\" width=\"@\" height=\"@\" fill=\"@\" stroke=\"@\" "
               "stroke-width=\".5\"/>\n",
               {x, y, width, height, fill, stroke});
}

// A rectangle whose corners are scooped out, as on the plate of the trainer's table.
std::string scooped(double inset, std::string_view fill, std::string_view stroke)
{
    constexpr double r = 4;
    const double width = right - margin - 2 * inset - 2 * r;
    const double height = plateHeight - 2 * inset - 2 * r;
    std::string path = svgCommand('M', std::array{margin + inset + r, margin + inset});
    double dx = 1; // clockwise from the upper side
    double dy = 0;
    for (const double length : {width, height, width, height}) {
        path += svgCommand('l', std::array{dx * length, dy * length}) +
                svgCommand('a', std::array{r, r, 0.0, 0.0, 0.0, r * (dx - dy), r * (dx + dy)});
        dx = -std::exchange(dy, dx);
    }
    return svg("<path d=\"@Z\" fill=\"@\" stroke=\"@\" stroke-width=\".35\"/>\n",
               {path, fill, stroke});
}

std::string linesText(const Chart& chart)
{
    return charts::countText(chart) + (chart.size() == 1 ? "" : ", best first");
}

std::string returnText(const ChartPrice& price)
{
    return "Returns " + (price.played[Taken::worst].returned * 100).decimals(6) + " of 100";
}

std::string lossText(const ChartPrice& price)
{
    const odds::Fraction loss = price.loss(Taken::worst);
    return "Loses " + (loss == odds::Fraction() ? "nothing" : (loss * 100).decimals(6)) +
           " against perfect play";
}

void writePlate(std::ostream& out, const Chart& chart, const ChartPrice& price)
{
    constexpr double left = margin + 9;
    constexpr double half = (right - margin) / 2 - 9;
    constexpr double middle = left + half;
    out << scooped(0, plate, "none") << scooped(1.4, "none", darkBrass)
        << drawnLine({"Quillet", 8, ivory, 0.08}, left, margin + 14.6, half)
        << drawnLine({"Jacks or better", 2.9, brass, 0.2}, left + 0.6, margin + 20.4, half)
        << drawnLine({linesText(chart), 4, ivory, 0.05}, middle, margin + 10, half, atRight)
        << drawnLine({returnText(price), 2.6, brass, 0.05}, middle, margin + 15.8, half, atRight)
        << drawnLine({lossText(price), 2.6, brass, 0.05}, middle, margin + 20.4, half, atRight);
}

// The cards to keep first, both parts from high to low, the ace highest.
std::array<std::size_t, 5> orderOf(const RowExample& example)
{
    std::array<std::size_t, 5> order{0, 1, 2, 3, 4};
    std::ranges::stable_sort(order, std::greater(), [&example](std::size_t i) {
        const int rank = odds::cardAt(example.places[i]).rank;
        return ((example.hold >> i & 1U) != 0 ? 100 : 0) + (rank == 1 ? 14 : rank);
    });
    return order;
}

void writeHand(std::ostream& out, const RowExample& example, double top, double height)
{
    double x = right - handWidth;
    for (const std::size_t i : orderOf(example)) {
        out << drawnCard(example.places[i], (example.hold >> i & 1U) != 0,
                         {x, top, cardWidth, height});
        x += cardWidth + cardGap;
    }
}

// The rows of a line have one colour and one number, on the first of them.
void writeRow(std::ostream& out, const charts::Row& row, std::size_t line,
              const std::optional<RowExample>& example, double top, double height)
{
    const RowColours& colours = rowColours[(line - 1) % rowColours.size()];
    const std::string name = charts::rowText(row);
    const std::string number = std::to_string(line);
    const double letters = std::min(3.4, 0.42 * height);
    const double baseline = top + (height + letters) / 2;
    out << "<g class=\"row\"><title>" << number << ". " << name << "</title>\n"
        << rectangle(namesLeft, top, namesRight - namesLeft, height, colours.ground)
        << drawnLine({row.sharesLine ? "" : number, 0.9 * letters, brass}, margin + 1, baseline,
                     namesLeft - margin - 3, atRight)
        << drawnLine({name, letters, colours.letters, 0.03}, namesLeft + 2.5, baseline,
                     namesRight - namesLeft - 4.5);
    constexpr double air = 0.35;
    if (example)
        writeHand(out, *example, top + air, height - 2 * air);
    else
        out << drawnLine({"never applies", letters, wood}, right - handWidth, baseline, handWidth);
    out << "</g>\n";
}

std::string payLine(const odds::Pays& pays)
{
    std::string text = "Pays for five credits: ";
    for (std::size_t outcome = 1; outcome < odds::outcomeCount; ++outcome)
        text += (outcome == 1 ? "" : ", ") + std::string(odds::outcomeName(outcome)) + ' ' +
                std::to_string(pays[outcome]);
    return text;
}

} // namespace

void writeChartCard(std::ostream& out, const Chart& chart, const ChartPrice& price,
                    const std::vector<std::optional<RowExample>>& examples, const odds::Pays& pays)
{
    out << "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"210mm\" height=\"297mm\" "
           "viewBox=\"0 0 210 297\">\n<title>"
        << linesText(chart) << ". " << returnText(price) << ". " << lossText(price)
        << ".</title>\n<desc>" << payLine(pays) << "</desc>\n<defs>\n"
        << svgDefinitions() << "</defs>\n"
        << rectangle(0, 0, pageWidth, pageHeight, paper);
    writePlate(out, chart, price);
    const double height =
        std::min(maxRowHeight, (rowsBottom - rowsTop) / static_cast<double>(chart.size()));
    const double bottom = rowsTop + height * static_cast<double>(chart.size());
    out << rectangle(margin, rowsTop, namesLeft - margin, bottom - rowsTop, wood);
    double top = rowsTop;
    std::size_t line = 0;
    for (std::size_t row = 0; row < chart.size(); ++row, top += height) {
        line += chart[row].sharesLine ? 0 : 1;
        writeRow(out, chart[row], line, examples[row], top, height);
    }
    constexpr std::string_view rules =
        "Play the first line that fits and throw the pale cards away. "
        "If several holds fit it, the return counts the worst.";
    constexpr double width = right - margin;
    out << rectangle(margin, rowsTop, namesRight - margin, bottom - rowsTop, "none", wood)
        << drawnLine({rules, 2, wood}, margin, rowsBottom + 5.4, width, inMiddle)
        << drawnLine({payLine(pays), 2, wood}, margin, rowsBottom + 10, width, inMiddle)
        << "</svg>\n";
}

} // namespace quillet::odds_program
