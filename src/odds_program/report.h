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

// An answer is worked out into tables, and the tables are printed in any format: as columns for
// readers, as comma-separated values, or as JSON.

// An exact number, shown with so many decimals; in text a share may be shown as a percentage.
struct Exact {
    odds::Fraction value;
    int places = 0;
    bool inPercent = false;
};

// A number that is known no better than a double.
struct Rounded {
    double value = 0;
    int places = 0;
};

// The cards of a hand that are held; all of them stand for the hand.
struct Cards {
    std::array<odds::DeckPlace, 5> places{};
    odds::Hold hold = odds::holdAll;
};

using Cell = std::variant<std::string, std::int64_t, Exact, Rounded, Cards>;

struct Column {
    std::string field;   // its name in comma-separated values and JSON
    std::string heading; // its title in text; a column without one is no part of the text
    bool close = false;  // no blanks between its cards, in text
};

struct Table {
    std::string name;  // in data
    std::string intro; // lines before it in text
    std::vector<Column> columns;
    std::vector<std::vector<Cell>> rows; // a cell for each column
    std::string outro;                   // lines after it in text
};

using Report = std::vector<Table>;

enum class Format { text, csv, json };

struct Style {
    Format format = Format::text;
    bool exact = false;  // the fractions, too, in text; data has them always
    bool colour = false; // suits in colour, in text
};

// Comma-separated values have a column for a field where the report is a single table, and a line
// for a cell where it is several. An exact number is followed by its fraction.
void writeReport(std::ostream& out, const Report& report, const Style& style);

// In lines that a terminal shows whole, those after the first set in.
[[nodiscard]] std::string wrapped(const std::string& text);

// Rounded to so many decimals.
[[nodiscard]] std::string decimals(double value, int places);

} // namespace quillet::odds_program
