#include "odds_program/report.h"

#include "odds/hand_text.h"
#include "odds_program/data_output.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <ostream>
#include <sstream>
#include <utility>

namespace quillet::odds_program
{

namespace
{

constexpr std::size_t lineWidth = 80;
constexpr std::size_t columnGap = 2;

bool isNumber(const Cell& cell)
{
    return !std::holds_alternative<std::string>(cell) && !std::holds_alternative<Cards>(cell);
}

std::string plain(const Cell& cell)
{
    struct {
        std::string operator()(const std::string& text) const { return text; }
        std::string operator()(std::int64_t number) const { return std::to_string(number); }
        std::string operator()(const Exact& exact) const
        {
            return (exact.inPercent ? exact.value * 100 : exact.value).decimals(exact.places);
        }
        std::string operator()(const Rounded& rounded) const
        {
            return decimals(rounded.value, rounded.places);
        }
        std::string operator()(const Cards& cards) const
        {
            return odds::holdText(cards.places, cards.hold);
        }
    } const text;
    return std::visit(text, cell);
}

std::string textOf(const Column& column, const Cell& cell)
{
    std::string text = plain(cell);
    if (column.close && std::holds_alternative<Cards>(cell))
        std::erase(text, ' ');
    return text;
}

// Diamonds yellow, hearts red. The escapes take no width.
std::string coloured(const std::string& cards)
{
    std::string text;
    for (const char c : cards) {
        if (c == 'd')
            text += "\x1b[33md\x1b[0m";
        else if (c == 'h')
            text += "\x1b[31mh\x1b[0m";
        else
            text += c;
    }
    return text;
}

struct TextColumn {
    std::size_t index; // in the table
    std::size_t width; // characters
    bool alignsRight;
};

// Texts longer than maxText do not widen their column.
std::vector<TextColumn> textColumns(const Table& table, std::size_t maxText)
{
    std::vector<TextColumn> columns;
    for (std::size_t i = 0; i < table.columns.size(); ++i) {
        TextColumn column{i, table.columns[i].heading.size(), false};
        if (column.width == 0)
            continue;
        for (const auto& row : table.rows) {
            const std::size_t size = textOf(table.columns[i], row[i]).size();
            const bool tooLong = size > maxText && std::holds_alternative<std::string>(row[i]);
            column.width = std::max(column.width, tooLong ? 0 : size);
            column.alignsRight = column.alignsRight || isNumber(row[i]);
        }
        columns.push_back(column);
    }
    return columns;
}

// Narrows the text columns until the table fits the line.
std::vector<TextColumn> fittingColumns(const Table& table)
{
    std::size_t maxText = lineWidth;
    while (true) {
        std::vector<TextColumn> columns = textColumns(table, maxText--);
        std::size_t width = 0;
        for (const TextColumn& column : columns)
            width += columnGap + column.width;
        if (width <= lineWidth || maxText == 0)
            return columns;
    }
}

// cellText(i) is the text of column i in this line. After a cell wider than its column the line
// breaks.
template <typename CellText>
std::string textLine(const std::vector<TextColumn>& columns, const CellText& cellText)
{
    std::string text; // lines that are complete
    std::string line;
    std::size_t start = columnGap;
    for (const TextColumn& column : columns) {
        const std::string cell = cellText(column.index);
        if (cell.size() > column.width) {
            const bool fits = start + cell.size() <= lineWidth;
            if (!fits && !line.empty())
                text += std::exchange(line, "") + "\n";
            line.resize(fits ? start : columnGap, ' ');
            text += std::exchange(line, "") + wrapped(cell);
        } else if (!cell.empty()) {
            line.resize(start + (column.alignsRight ? column.width - cell.size() : 0), ' ');
            line += cell;
        }
        start += column.width + columnGap;
    }
    return text + line;
}

void colourCards(std::string& text, const Column& column, const Cell& cell)
{
    if (!std::holds_alternative<Cards>(cell))
        return;
    const std::string cards = textOf(column, cell);
    if (const auto at = text.find(cards); at != std::string::npos && cards != "nothing")
        text.replace(at, cards.size(), coloured(cards));
}

void writeExact(std::ostream& out, const Column& column, const Cell& cell)
{
    const auto* exact = std::get_if<Exact>(&cell);
    if (exact != nullptr && !column.heading.empty())
        out << "      " << column.field << " = " << exact->value.text() << "\n";
}

void writeTextTable(std::ostream& out, const Table& table, const Style& style)
{
    out << table.intro;
    const std::vector<TextColumn> columns = fittingColumns(table);
    if (!table.rows.empty())
        out << textLine(columns, [&](std::size_t i) { return table.columns[i].heading; }) << "\n";
    for (const auto& row : table.rows) {
        std::string text =
            textLine(columns, [&](std::size_t i) { return textOf(table.columns[i], row[i]); });
        for (std::size_t i = 0; style.colour && i < row.size(); ++i)
            if (!table.columns[i].heading.empty())
                colourCards(text, table.columns[i], row[i]);
        out << text << "\n";
        for (std::size_t i = 0; style.exact && i < row.size(); ++i)
            writeExact(out, table.columns[i], row[i]);
    }
    out << table.outro;
}

// CSV and JSON have more decimals than text.
std::string dataText(const Cell& cell)
{
    constexpr int places = 12;
    if (const auto* exact = std::get_if<Exact>(&cell))
        return exact->value.decimals(places);
    const auto* rounded = std::get_if<Rounded>(&cell);
    return rounded == nullptr ? plain(cell) : decimals(rounded->value, places);
}

std::string fractionOf(const Cell& cell)
{
    const auto* exact = std::get_if<Exact>(&cell);
    return exact == nullptr ? "" : exact->value.text();
}

// Whether some cell of the column is exact, so that CSV needs a second column.
bool hasFractions(const Table& table, std::size_t column)
{
    return std::ranges::any_of(table.rows, [column](const auto& row) {
        return std::holds_alternative<Exact>(row[column]);
    });
}

// An exact figure is followed by its fraction. CSV has as many fields in every row.
std::vector<Field> fieldsOf(const Table& table, const std::vector<Cell>& row, Format format)
{
    std::vector<Field> fields;
    for (std::size_t i = 0; i < row.size(); ++i) {
        const std::string& name = table.columns[i].field;
        fields.push_back({name, dataText(row[i]), !isNumber(row[i])});
        if (std::holds_alternative<Exact>(row[i]) ||
            (format == Format::csv && hasFractions(table, i)))
            fields.push_back({name + " fraction", fractionOf(row[i]), true});
    }
    return fields;
}

void writeWideCsv(std::ostream& out, const Table& table)
{
    const std::vector<Cell> none(table.columns.size());
    const auto& first = table.rows.empty() ? none : table.rows.front();
    writeCsvNames(out, fieldsOf(table, first, Format::csv));
    for (const auto& row : table.rows)
        writeCsvValues(out, fieldsOf(table, row, Format::csv));
}

void writeLongCsv(std::ostream& out, const Report& report)
{
    out << "table,row,field,value,fraction\n";
    for (const Table& table : report)
        for (const auto& row : table.rows)
            for (std::size_t i = 1; i < row.size(); ++i)
                writeCsvValues(out, {{"table", table.name},
                                     {"row", dataText(row[0])},
                                     {"field", table.columns[i].field},
                                     {"value", dataText(row[i])},
                                     {"fraction", fractionOf(row[i])}});
}

void writeJson(std::ostream& out, const Report& report)
{
    const char* beforeTable = "{\n  ";
    for (const Table& table : report) {
        out << beforeTable << jsonText(table.name) << ": [";
        beforeTable = ",\n  ";
        const char* beforeRow = "\n    ";
        for (const auto& row : table.rows) {
            out << beforeRow;
            beforeRow = ",\n    ";
            writeJsonObject(out, fieldsOf(table, row, Format::json));
        }
        out << "\n  ]";
    }
    out << "\n}\n";
}

} // namespace

void writeReport(std::ostream& out, const Report& report, const Style& style)
{
    switch (style.format) {
    case Format::text:
        for (const Table& table : report)
            writeTextTable(out, table, style);
        break;
    case Format::csv:
        if (report.size() == 1)
            writeWideCsv(out, report.front());
        else
            writeLongCsv(out, report);
        break;
    case Format::json:
        writeJson(out, report);
        break;
    }
}

std::string wrapped(const std::string& text)
{
    constexpr std::size_t margin = 4; // for callers that indent the text
    std::string result;
    std::string line;
    std::istringstream words(text);
    for (std::string word; words >> word;) {
        if (line.size() + word.size() + 1 > lineWidth - margin) {
            result += line + "\n";
            line = "   ";
        }
        line += (line.empty() ? "" : " ") + word;
    }
    return result + line + "\n";
}

std::string decimals(double value, int places)
{
    std::array<char, 64> text{};
    std::snprintf(text.data(), text.size(), "%.*f", places, value);
    return text.data();
}

} // namespace quillet::odds_program
