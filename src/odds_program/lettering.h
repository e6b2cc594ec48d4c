#pragma once

#include <string>
#include <string_view>

namespace quillet::odds_program
{

// A line of capitals in the trainer's own letters, for SVG.
struct Lettering {
    std::string_view text; // small letters become capitals
    double height;         // of the capitals
    double tracking = 0;   // more room between letters, as a share of the height
};

[[nodiscard]] double widthOf(const Lettering& line);

// The line from x on, its baseline at y, in a colour such as "#22130b". The letters themselves
// stand in the page's definitions.
[[nodiscard]] std::string drawn(const Lettering& line, double x, double y, std::string_view colour);

// The definitions of all letters.
[[nodiscard]] std::string letterDefinitions();

// Rounded to a thousandth and as short as it gets.
[[nodiscard]] std::string svgNumber(double value);

} // namespace quillet::odds_program
