#pragma once

#include "odds/dealt_hand.h"
#include "odds/fraction.h"

#include <array>
#include <concepts>
#include <cstdint>
#include <iosfwd>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace quillet::odds_program
{

// A report is a list of tables. It can be printed as text, CSV or JSON.

// A number or words.
struct Cell {
    template <std::convertible_to<std::string_view> Words>
    Cell(const Words& words) : text(std::string_view(words)), data(text)
    {
    }
    Cell(std::int64_t number) : Cell(std::to_string(number), std::to_string(number)) {}
    Cell(std::string number, std::string numberInData, std::string numberAsFraction = {})
        : text(std::move(number)), data(std::move(numberInData)),
          fraction(std::move(numberAsFraction)), isNumber(true)
    {
    }

    std::string text;
    std::string data;     // in CSV and JSON, with more decimals
    std::string fraction; // of an exact number
    bool isNumber = false;
    bool isCards = false;
};

// `places` is the number of decimals in text.
[[nodiscard]] Cell exact(const odds::Fraction& number, int places);
[[nodiscard]] Cell percent(const odds::Fraction& share, int places); // a share of 1 in data
[[nodiscard]] Cell rounded(double number, int places);
// The held cards of a hand, with blanks between them.
[[nodiscard]] Cell cards(const std::array<odds::DeckPlace, 5>& places, odds::Hold hold);
// All five cards; no blanks in text.
[[nodiscard]] Cell closeCards(const std::array<odds::DeckPlace, 5>& places);

struct Column {
    std::string field;   // name in CSV and JSON
    std::string heading; // in text; columns without a heading are left out of text
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

// As CSV, a report of one table has a column for each field, and one of several tables has a line
// for each cell. An exact number is followed by its fraction.
void writeReport(std::ostream& out, const Report& report, const Style& style);

// Wrapped at 76 columns, with continuation lines indented.
[[nodiscard]] std::string wrapped(const std::string& text);

// Rounded to `places` decimals.
[[nodiscard]] std::string decimals(double value, int places);

} // namespace quillet::odds_program
