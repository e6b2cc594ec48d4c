#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <string_view>
#include <vector>

namespace quillet
{

// Outlines are written as text, such as "M0 0 L4 0 L2 3 Z". Coordinates are absolute, y points
// down.
//   M x y                 move               L x y                  line
//   Q x1 y1 x y           quadratic curve    C x1 y1 x2 y2 x y      cubic curve
//   O x y r               circle             E x y rx ry            ellipse
//   R x y width height    rectangle          Z                      close
//   A x y rx ry from sweep    arc of an ellipse in degrees, counter-clockwise; starts a stroke or
//                             continues it
//   D x1 y1 x2 y2             slanted pen stroke with level ends, for letters
struct PathCommand {
    char letter = 0;
    std::size_t count = 0; // of numbers
    std::array<double, 6> numbers{};

    [[nodiscard]] std::span<const double> used() const { return std::span(numbers).first(count); }
};

// A mistake in the text asserts.
[[nodiscard]] std::vector<PathCommand> pathCommands(std::string_view text);

// Removes a number, and blanks in front of it, from the front of the text.
[[nodiscard]] double takeNumber(std::string_view& text);

} // namespace quillet
