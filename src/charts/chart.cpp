#include "charts/chart.h"

#include <array>

namespace quillet::charts
{

namespace
{

constexpr std::string_view blanks = " \t\r\v\f";
constexpr std::size_t suggestions = 3;

std::string_view withoutCommentAndBlanks(std::string_view line)
{
    line = line.substr(0, line.find('#'));
    const std::size_t first = line.find_first_not_of(blanks);
    if (first == std::string_view::npos)
        return {};
    return line.substr(first, line.find_last_not_of(blanks) - first + 1);
}

[[noreturn]] void failAt(std::size_t line, const std::string& why)
{
    throw BadChart("line " + std::to_string(line) + ": " + why);
}

RowKindId rowNamed(std::string_view name, std::size_t line)
{
    if (const auto found = findRowKind(name))
        return *found;
    std::string why = "there is no row \"" + std::string(name) + "\"; the nearest are";
    const char* before = " ";
    for (const std::string_view nearest : nearestRowNames(name, suggestions)) {
        why += before + ('"' + std::string(nearest)) + '"';
        before = ", ";
    }
    failAt(line, why);
}

} // namespace

Chart parseChart(std::string_view text)
{
    Chart chart;
    for (std::size_t line = 1; !text.empty(); ++line) {
        const std::size_t end = text.find('\n');
        const std::string_view name = withoutCommentAndBlanks(text.substr(0, end));
        text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
        if (name.empty())
            continue;
        if (chart.size() == mostRows)
            failAt(line, "a chart has no more than " + std::to_string(mostRows) + " rows");
        chart.push_back(rowNamed(name, line));
    }
    if (chart.empty())
        throw BadChart("there is no row in it");
    if (chart.back() != nothingRow()) {
        if (chart.size() == mostRows)
            throw BadChart("there is no room left for the last row, \"nothing\"");
        chart.push_back(nothingRow());
    }
    return chart;
}

Chart trainersChart()
{
    constexpr std::array<std::string_view, 21> rows{"royal",
                                                    "straight flush",
                                                    "4 of a kind",
                                                    "full house",
                                                    "4 to a royal",
                                                    "flush",
                                                    "straight",
                                                    "3 of a kind",
                                                    "4 to a straight flush, no gap",
                                                    "2 pair",
                                                    "high pair",
                                                    "3 to a royal",
                                                    "4 to a flush",
                                                    "low pair",
                                                    "4 to an outside straight",
                                                    "2 high, suited",
                                                    "3 to a straight flush, no gap",
                                                    "2 high",
                                                    "10 and face, suited",
                                                    "1 high",
                                                    "nothing"};
    Chart chart;
    for (const std::string_view row : rows)
        chart.push_back(*findRowKind(row));
    return chart;
}

std::string chartText(const Chart& chart)
{
    std::string text;
    for (const RowKindId row : chart)
        text += std::string(rowKinds()[row].name) + '\n';
    return text;
}

} // namespace quillet::charts
