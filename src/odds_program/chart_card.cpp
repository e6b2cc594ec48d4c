#include "odds_program/chart_card.h"

#include "odds/hand_text.h"

#include <algorithm>
#include <array>
#include <functional>
#include <ostream>
#include <string>
#include <string_view>

namespace quillet::odds_program
{

namespace
{

using charts::Chart;
using charts::ChartPrice;
using charts::Taken;

// Lengths are millimetres.
constexpr double margin = 12;
constexpr double right = 198;
constexpr double middle = 105;
constexpr double rowsTop = 43;
constexpr double rowsBottom = 275;
constexpr double maxRowHeight = 11.5;
constexpr double cardWidth = 10.5;
constexpr double cardGap = 0.9;
constexpr double handWidth = 5 * cardWidth + 4 * cardGap;
constexpr double namesLeft = margin + 8;
constexpr double namesRight = right - handWidth - 3;

constexpr std::string_view brass = "#f2d79a";
constexpr std::string_view ivory = "#f8efdb";
constexpr std::string_view wood = "#6b3a1c";

// The letters are capHeight high at a size of 1.
constexpr double capHeight = 0.73;

// The paper, A4, and the plate of the trainer's table. The suits are centred on the origin.
constexpr double suitHeight = 18;
constexpr std::string_view pageStart =
    R"(<svg xmlns="http://www.w3.org/2000/svg" width="210mm" height="297mm" viewBox="0 0 210 297"
  font-family="DejaVu Sans, Verdana, sans-serif">
<defs>
<path id="c" d="M-4.1 -4.9 a4.1 4.1 0 1 1 8.2 0 a4.1 4.1 0 1 1 -8.2 0 z M-8.7 2 a4.1 4.1 0 1 1 8.2 0
  a4.1 4.1 0 1 1 -8.2 0 z M0.5 2 a4.1 4.1 0 1 1 8.2 0 a4.1 4.1 0 1 1 -8.2 0 z
  M-2.2 -0.2 L0 -2.4 L2.2 -0.2 L0.9 2 C0.9 5.2 1.6 8 3.6 9 L-3.6 9 C-1.6 8 -0.9 5.2 -0.9 2 z"/>
<path id="d" d="M0 -9 Q-2.9 -3.9 -6.9 0 Q-2.9 3.9 0 9 Q2.9 3.9 6.9 0 Q2.9 -3.9 0 -9 z"/>
<path id="h" d="M0 -5 C-0.9 -7.6 -2.6 -9 -4.5 -9 C-6.9 -9 -8.2 -7.1 -8.2 -4.8 C-8.2 -0.6 -2.6 3 0 9
  C2.6 3 8.2 -0.6 8.2 -4.8 C8.2 -7.1 6.9 -9 4.5 -9 C2.6 -9 0.9 -7.6 0 -5 z"/>
<path id="s" d="M0 -9 C-1.4 -5.2 -8.2 -1.8 -8.2 2.7 C-8.2 5 -6.6 6.5 -4.5 6.5 C-2.9 6.3 -1.6 5.4
  -0.9 3.9 C-0.8 6.3 -1.6 8.2 -3.4 9 L3.4 9 C1.6 8.2 0.8 6.3 0.9 3.9 C1.6 5.4 2.9 6.3 4.5 6.5
  C6.6 6.5 8.2 5 8.2 2.7 C8.2 -1.8 1.4 -5.2 0 -9 z"/>
</defs>
<rect width="210" height="297" fill="#fffdf7"/>
<path fill="#22130b" d="M16 12 h178 a4 4 0 0 0 4 4 v19 a4 4 0 0 0 -4 4 h-178 a4 4 0 0 0 -4 -4 v-19
  a4 4 0 0 0 4 -4 z"/>
<path fill="none" stroke="#b98d45" stroke-width=".35" d="M17.4 13.4 h175.2 a4 4 0 0 0 4 4 v16.2
  a4 4 0 0 0 -4 4 h-175.2 a4 4 0 0 0 -4 -4 v-16.2 a4 4 0 0 0 4 -4 z"/>
)";

struct Box {
    double x;
    double y;
    double width;
    double height;
};

void writeBox(std::ostream& out, const Box& box, std::string_view fill, std::string_view stroke,
              double corners = 0)
{
    out << "<rect x='" << box.x << "' y='" << box.y << "' width='" << box.width << "' height='"
        << box.height << "' rx='" << corners << "' fill='" << fill << "' stroke='" << stroke
        << "' stroke-width='.4'/>\n";
}

struct Lettering {
    double size;
    std::string_view colour;
    std::string_view anchor = "start"; // start, middle or end: what is at x
};

// A line with its baseline at y. One that may be wider than the space is drawn smaller.
void writeLine(std::ostream& out, std::string_view text, const Lettering& lettering, double x,
               double y, double space)
{
    // The mean width of the letters of a long line in a wide font, for a size of 1.
    constexpr double letterWidth = 0.56;
    const double size =
        std::min(lettering.size, space / (letterWidth * static_cast<double>(text.size())));
    out << "<text x='" << x << "' y='" << y << "' font-size='" << size << "' fill='"
        << lettering.colour << "' text-anchor='" << lettering.anchor << "'>" << text << "</text>\n";
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
    constexpr double inset = 9;
    constexpr double half = middle - margin - inset;
    writeLine(out, "Quillet", {11, ivory}, margin + inset, 26.6, half);
    writeLine(out, "Jacks or better", {4, brass}, margin + inset + 0.6, 33, half);
    writeLine(out, linesText(chart), {5, ivory, "end"}, right - inset, 22, half);
    writeLine(out, returnText(price), {3.5, brass, "end"}, right - inset, 28, half);
    writeLine(out, lossText(price), {3.5, brass, "end"}, right - inset, 33, half);
}

// Rank and suit of a small card. Discards are pale.
void writeCard(std::ostream& out, odds::DeckPlace place, bool kept, const Box& box)
{
    const std::string name = odds::cardText(place); // such as Th
    const std::string rank = name[0] == 'T' ? "10" : name.substr(0, 1);
    const bool red = name[1] == 'd' || name[1] == 'h';
    const std::string_view ink = red ? "#c8102e" : "#17161b";
    const double size = std::min(0.9 * box.height, 0.34 * box.width);
    const double centre = box.y + box.height / 2;
    out << "<g font-weight='bold' opacity='" << (kept ? 1 : 0.35) << "'>";
    writeBox(out, box, "#ffffff", kept ? wood : "#808080", 0.8);
    writeLine(out, rank, {size, ink, "middle"}, box.x + 0.31 * box.width,
              centre + capHeight / 2 * size, box.width);
    out << "<use href='#" << name[1] << "' fill='" << ink << "' transform='translate("
        << box.x + 0.75 * box.width << ' ' << centre << ") scale(" << 0.85 * size / suitHeight
        << ")'/></g>\n";
}

// The cards to keep first, both parts from high to low, the ace highest.
std::array<std::size_t, 5> orderOf(const odds::HeldDeal& example)
{
    std::array<std::size_t, 5> order{0, 1, 2, 3, 4};
    std::ranges::stable_sort(order, std::greater(), [&example](std::size_t i) {
        const int rank = odds::cardAt(example.places[i]).rank;
        return ((example.held >> i & 1U) != 0 ? 100 : 0) + (rank == 1 ? 14 : rank);
    });
    return order;
}

void writeHand(std::ostream& out, const odds::HeldDeal& example, Box card)
{
    for (const std::size_t i : orderOf(example)) {
        writeCard(out, example.places[i], (example.held >> i & 1U) != 0, card);
        card.x += cardWidth + cardGap;
    }
}

// The rows of a line have one colour and one number, on the first of them.
void writeRow(std::ostream& out, const charts::Row& row, std::size_t line,
              const std::optional<odds::HeldDeal>& example, double top, double height)
{
    const bool dark = line % 2 != 0; // as in the chart beside the trainer's table
    const std::string name = charts::rowText(row);
    const std::string number = std::to_string(line);
    const double size = std::min(4.6, 0.6 * height);
    const double baseline = top + (height + capHeight * size) / 2;
    constexpr double handLeft = right - handWidth;
    constexpr double air = 0.35;
    out << "<g><title>" << number << ". " << name << "</title>\n";
    writeBox(out, {namesLeft, top, namesRight - namesLeft, height}, dark ? "#808080" : "#e0e0e0",
             "none");
    if (!row.sharesLine)
        writeLine(out, number, {0.85 * size, brass, "end"}, namesLeft - 2, baseline, namesLeft);
    writeLine(out, name, {size, dark ? "#ffffff" : "#000000"}, namesLeft + 2.5, baseline,
              namesRight - namesLeft - 4.5);
    if (example)
        writeHand(out, *example, {handLeft, top + air, cardWidth, height - 2 * air});
    else
        writeLine(out, "never applies", {size, wood}, handLeft, baseline, handWidth);
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
                    const charts::RowExamples& examples, const odds::Pays& pays)
{
    out << pageStart << "<title>" << linesText(chart) << ". " << returnText(price) << ". "
        << lossText(price) << ".</title>\n<desc>" << payLine(pays) << "</desc>\n";
    writePlate(out, chart, price);
    const double height =
        std::min(maxRowHeight, (rowsBottom - rowsTop) / static_cast<double>(chart.size()));
    const double allHeight = height * static_cast<double>(chart.size());
    writeBox(out, {margin, rowsTop, namesLeft - margin, allHeight}, wood, "none");
    double top = rowsTop;
    std::size_t line = 0;
    for (std::size_t row = 0; row < chart.size(); ++row, top += height) {
        line += chart[row].sharesLine ? 0 : 1;
        writeRow(out, chart[row], line, examples[row], top, height);
    }
    writeBox(out, {margin, rowsTop, namesRight - margin, allHeight}, "none", wood);
    constexpr std::string_view rules =
        "Play the first line that fits and throw the pale cards away. "
        "If several holds fit it, the return counts the worst.";
    writeLine(out, rules, {2.6, wood, "middle"}, middle, rowsBottom + 5.4, right - margin);
    writeLine(out, payLine(pays), {2.6, wood, "middle"}, middle, rowsBottom + 10, right - margin);
    out << "</svg>\n";
}

} // namespace quillet::odds_program
