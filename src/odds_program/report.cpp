#include "odds_program/report.h"

#include "odds/hand_text.h"
#include "odds_program/data_output.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <ostream>
#include <sstream>

namespace quillet::odds_program
{

namespace
{

constexpr std::size_t lineWidth = 80;
constexpr std::size_t columnGap = 2;
constexpr int dataPlaces = 12; // decimals in CSV and JSON

// Diamonds yellow, hearts red.
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

// Cells of words longer than maxWords do not widen their column.
std::vector<TextColumn> textColumns(const Table& table, std::size_t maxWords)
{
    std::vector<TextColumn> columns;
    for (std::size_t i = 0; i < table.columns.size(); ++i) {
        TextColumn column{i, table.columns[i].heading.size(), false};
        if (column.width == 0)
            continue;
        for (const auto& row : table.rows) {
            const Cell& cell = row[i];
            if (cell.isNumber || cell.isCards || cell.text.size() <= maxWords)
                column.width = std::max(column.width, cell.text.size());
            column.alignsRight = column.alignsRight || cell.isNumber;
        }
        columns.push_back(column);
    }
    return columns;
}

// Narrows the columns of words until the table fits the line.
std::vector<TextColumn> fittingColumns(const Table& table)
{
    for (std::size_t maxWords = lineWidth;; --maxWords) {
        std::vector<TextColumn> columns = textColumns(table, maxWords);
        std::size_t width = 0;
        for (const TextColumn& column : columns)
            width += columnGap + column.width;
        if (width <= lineWidth || maxWords == 0)
            return columns;
    }
}

// A line break follows a cell that is wider than its column.
void writeTextLine(std::ostream& out, const std::vector<TextColumn>& columns,
                   const std::vector<Cell>& cells, bool colour)
{
    std::size_t start = columnGap;
    std::size_t end = 0; // of the text on the line
    const auto moveTo = [&out, &end](std::size_t place) { out << std::string(place - end, ' '); };
    for (const TextColumn& column : columns) {
        const Cell& cell = cells[column.index];
        const std::size_t size = cell.text.size();
        if (size > column.width) {
            const bool fits = start + size <= lineWidth;
            if (!fits && end > 0)
                out << "\n";
            end = fits ? end : 0;
            moveTo(fits ? start : columnGap);
            out << wrapped(cell.text);
            end = 0;
        } else if (size > 0) {
            const std::size_t from = start + (column.alignsRight ? column.width - size : 0);
            moveTo(from);
            out << (colour && cell.isCards ? coloured(cell.text) : cell.text);
            end = from + size;
        }
        start += column.width + columnGap;
    }
    out << "\n";
}

void writeTextTable(std::ostream& out, const Table& table, const Style& style)
{
    out << table.intro;
    const std::vector<TextColumn> columns = fittingColumns(table);
    std::vector<Cell> headings;
    for (const Column& column : table.columns)
        headings.emplace_back(column.heading);
    if (!table.rows.empty())
        writeTextLine(out, columns, headings, false);
    for (const auto& row : table.rows) {
        writeTextLine(out, columns, row, style.colour);
        for (const TextColumn& column : columns)
            if (style.exact && !row[column.index].fraction.empty())
                out << "      " << table.columns[column.index].field << " = "
                    << row[column.index].fraction << "\n";
    }
    out << table.outro;
}

// An exact number is followed by its fraction. All rows of CSV have the same fields.
std::vector<Field> fieldsOf(const Table& table, const std::vector<Cell>& row, Format format)
{
    std::vector<Field> fields;
    for (std::size_t i = 0; i < row.size(); ++i) {
        const std::string& name = table.columns[i].field;
        fields.push_back({name, row[i].data, !row[i].isNumber});
        const bool hasColumn = format == Format::csv &&
                               std::ranges::any_of(table.rows, [i](const std::vector<Cell>& any) {
                                   return !any[i].fraction.empty();
                               });
        if (hasColumn || !row[i].fraction.empty())
            fields.push_back({name + " fraction", row[i].fraction, true});
    }
    return fields;
}

void writeWideCsv(std::ostream& out, const Table& table)
{
    const std::vector<Cell> none(table.columns.size(), "");
    auto names = fieldsOf(table, table.rows.empty() ? none : table.rows.front(), Format::csv);
    for (Field& field : names)
        field.value = field.name;
    writeCsvLine(out, names);
    for (const auto& row : table.rows)
        writeCsvLine(out, fieldsOf(table, row, Format::csv));
}

void writeLongCsv(std::ostream& out, const Report& report)
{
    out << "table,row,field,value,fraction\n";
    for (const Table& table : report)
        for (const auto& row : table.rows)
            for (std::size_t i = 1; i < row.size(); ++i)
                writeCsvLine(out, {{"table", table.name},
                                   {"row", row[0].data},
                                   {"field", table.columns[i].field},
                                   {"value", row[i].data},
                                   {"fraction", row[i].fraction}});
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

Cell exact(const odds::Fraction& number, int places)
{
    return {number.decimals(places), number.decimals(dataPlaces), number.text()};
}

Cell percent(const odds::Fraction& share, int places)
{
    return {(share * 100).decimals(places), share.decimals(dataPlaces), share.text()};
}

Cell rounded(double number, int places)
{
    return {decimals(number, places), decimals(number, dataPlaces)};
}

Cell cards(const std::array<odds::DeckPlace, 5>& places, odds::Hold hold)
{
    Cell cell(odds::holdText(places, hold));
    cell.isCards = hold != 0;
    return cell;
}

Cell closeCards(const std::array<odds::DeckPlace, 5>& places)
{
    Cell cell = cards(places, odds::holdAll);
    std::erase(cell.text, ' ');
    return cell;
}

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
