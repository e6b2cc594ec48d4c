#include "charts/chart.h"

#include "charts/names.h"
#include "engine/hand_evaluation.h"
#include "odds/bad_input.h"
#include "odds/text.h"

#include <algorithm>
#include <bit>
#include <utility>

namespace quillet::charts
{

namespace
{

constexpr std::string_view blanks = " \t\r\v\f";
constexpr std::size_t suggestions = 3;

[[noreturn]] void failAt(std::size_t line, const std::string& why)
{
    throw odds::BadInput("line " + std::to_string(line) + ": " + why);
}

// Reports an unknown name and the nearest known ones.
template <typename Kinds>
[[noreturn]] void failAtName(std::size_t line, const char* what, std::string_view name,
                             const Kinds& kinds)
{
    std::string why = std::string("there is no ") + what + " \"" + odds::printable(name) + '"';
    const char* before = "; the nearest are ";
    for (const std::string_view nearest : nearestNames(kinds, name, suggestions)) {
        why += before + ('"' + std::string(nearest)) + '"';
        before = ", ";
    }
    failAt(line, why);
}

Row rowIn(std::string_view text, std::size_t line)
{
    const std::size_t end = text.find(';');
    const std::string_view name = odds::trimmed(text.substr(0, end), blanks);
    const auto kind = findRowKind(name);
    if (!kind)
        failAtName(line, "row", name, rowKinds());
    Row row{*kind, 0};
    if (end == std::string_view::npos)
        return row;
    for (std::string_view asked : odds::split(text.substr(end + 1), ',')) {
        asked = odds::trimmed(asked, blanks);
        const auto discards = findDiscardKind(asked);
        if (!discards)
            failAtName(line, "condition", asked, discardKinds());
        row.discards |= DiscardSet{1} << *discards;
    }
    return row;
}

void addLine(Chart& chart, std::string_view line, std::size_t number)
{
    if (line.empty())
        return;
    bool sharesLine = line.front() == '/' && !chart.empty();
    for (const std::string_view row : odds::split(line.substr(sharesLine ? 1 : 0), '/')) {
        if (chart.size() == maxRows)
            failAt(number, "a chart has no more than " + std::to_string(maxRows) + " rows");
        chart.push_back(rowIn(row, number));
        chart.back().sharesLine = std::exchange(sharesLine, true);
    }
}

} // namespace

Chart parseChart(std::string_view text)
{
    Chart chart;
    std::size_t number = 0;
    for (const std::string_view line : odds::split(text, '\n'))
        addLine(chart, odds::trimmed(line.substr(0, line.find('#')), blanks), ++number);
    if (chart.empty())
        throw odds::BadInput("there is no row in it");
    if (chart.back().kind != nothingRow() || chart.back().discards != 0) {
        if (chart.size() == maxRows)
            throw odds::BadInput("there is no room left for the last row, \"nothing\"");
        chart.push_back({nothingRow()});
    }
    return chart;
}

const Chart& trainersChart()
{
    static const Chart chart = [] {
        Chart rows;
        for (std::int16_t code = 1; code <= playCodeCount; ++code)
            rows.push_back({*findRowKind(playName(code))});
        return rows;
    }();
    return chart;
}

std::string rowText(const Row& row)
{
    std::string text(rowKinds()[row.kind].name);
    const char* before = "; ";
    for (DiscardSet left = row.discards; left != 0; left &= left - 1) {
        const auto asked = static_cast<std::size_t>(std::countr_zero(left));
        text.append(before).append(discardKinds()[asked].name);
        before = ", ";
    }
    return text;
}

std::string chartText(const Chart& chart)
{
    constexpr std::size_t width = 80;
    std::string text;
    std::size_t start = 0; // of the last of its lines
    for (const Row& row : chart) {
        const std::string name = rowText(row);
        const std::string_view between = row.sharesLine ? " / " : "";
        if (!row.sharesLine || text.size() + between.size() + name.size() > start + width) {
            text += text.empty() ? "" : "\n";
            start = text.size();
            text += row.sharesLine ? "   " : "";
        }
        text.append(between).append(name);
    }
    return text + '\n';
}

std::size_t lineCount(const Chart& chart)
{
    return static_cast<std::size_t>(std::ranges::count(chart, false, &Row::sharesLine));
}

std::string countText(const Chart& chart)
{
    const std::size_t lines = lineCount(chart);
    std::string text = std::to_string(lines) + (lines == 1 ? " line" : " lines");
    if (lines < chart.size())
        text.append(" (").append(std::to_string(chart.size())).append(" rows)");
    return text;
}

} // namespace quillet::charts
