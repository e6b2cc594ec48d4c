#pragma once

#include <span>
#include <string>
#include <string_view>

namespace quillet::odds_program
{

// A line of capitals in the trainer's letters, for SVG.
struct Lettering {
    std::string_view text; // lower case becomes capitals
    double height;         // of the capitals
    double tracking = 0;   // extra space between letters, as a share of the height
};

[[nodiscard]] double widthOf(const Lettering& line);

// The line from x on, its baseline at y, in a colour such as "#22130b". The page must contain
// letterDefinitions().
[[nodiscard]] std::string drawn(const Lettering& line, double x, double y, std::string_view colour);

// The definitions of all letters.
[[nodiscard]] std::string letterDefinitions();

// Rounded to three decimals, as short as possible.
[[nodiscard]] std::string svgNumber(double value);

// A command of an SVG path.
[[nodiscard]] std::string svgCommand(char letter, std::span<const double> numbers);

} // namespace quillet::odds_program
