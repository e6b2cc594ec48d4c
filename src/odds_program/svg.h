#pragma once

#include "odds/suit_classes.h"

#include <concepts>
#include <initializer_list>
#include <span>
#include <string>
#include <string_view>

namespace quillet::odds_program
{

// Rounded to three decimals, as short as possible.
[[nodiscard]] std::string svgNumber(double value);

struct SvgValue {
    SvgValue(double number) : text(svgNumber(number)) {}
    template <std::convertible_to<std::string_view> Words>
    SvgValue(const Words& words) : text(std::string_view(words))
    {
    }

    std::string text;
};

// The pattern with each @ replaced by the next value.
[[nodiscard]] std::string svg(std::string_view pattern, std::initializer_list<SvgValue> values);

// A command of a path.
[[nodiscard]] std::string svgCommand(char letter, std::span<const double> numbers);

// A line of capitals in the trainer's letters.
struct Lettering {
    std::string_view text; // lower case becomes capitals
    double height;         // of the capitals
    std::string_view colour;
    double tracking = 0; // extra space between letters, as a share of the height
};

// Alignment of a line: the share of the free space that is to its left.
inline constexpr double atLeft = 0;
inline constexpr double inMiddle = 0.5;
inline constexpr double atRight = 1;

// The line in the space that begins at x, with its baseline at y. A line wider than the space is
// drawn smaller.
[[nodiscard]] std::string drawnLine(const Lettering& line, double x, double y, double space,
                                    double align = atLeft);

struct Box {
    double x;
    double y;
    double width;
    double height;
};

// A small card: its rank beside its suit. Discards are pale.
[[nodiscard]] std::string drawnCard(odds::DeckPlace place, bool kept, const Box& box);

// The definitions of all letters, ranks and suits, which the page must contain.
[[nodiscard]] std::string svgDefinitions();

} // namespace quillet::odds_program
