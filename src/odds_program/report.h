#pragma once

#include "odds/dealt_hand.h"
#include "odds/fraction.h"

#include <cstdint>
#include <iosfwd>
#include <string>
#include <variant>
#include <vector>

namespace quillet::odds_program
{

// A report is a list of tables, which can be printed as text, CSV or JSON.

// An exact number. `places` and `inPercent` are for text only.
struct Exact {
    odds::Fraction value;
    int places = 0;
    bool inPercent = false;
};

// An approximate number.
struct Rounded {
    double value = 0;
    int places = 0;
};

// The held cards of a hand.
struct Cards {
    std::array<odds::DeckPlace, 5> places{};
    odds::Hold hold = odds::holdAll;
};

using Cell = std::variant<std::string, std::int64_t, Exact, Rounded, Cards>;

struct Column {
    std::string field;   // name in CSV and JSON
    std::string heading; // in text; columns without a heading are left out of text
    bool close = false;  // no blanks between cards in text
};

struct Table {
    std::string name;  // in CSV and JSON
    std::string intro; // text before the table
    std::vector<Column> columns;
    std::vector<std::vector<Cell>> rows{}; // a cell for each column
    std::string outro{};                   // text after the table
};

using Report = std::vector<Table>;

enum class Format { text, csv, json };

struct Style {
    Format format = Format::text;
    bool exact = false;  // fractions in text too; CSV and JSON always have them
    bool colour = false; // coloured suits in text
};

// CSV has a column for each field if the report is one table, and a line for each cell if it is
// several. An exact number is followed by its fraction.
void writeReport(std::ostream& out, const Report& report, const Style& style);

// Wrapped at the width of a terminal, with continuation lines indented.
[[nodiscard]] std::string wrapped(const std::string& text);

// Rounded to `places` decimals.
[[nodiscard]] std::string decimals(double value, int places);

} // namespace quillet::odds_program
