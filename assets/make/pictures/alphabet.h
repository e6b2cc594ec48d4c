#pragma once

#include <QPainterPath>

#include <string_view>

namespace quillet::artwork
{

// How a line of capitals is cut. Lengths are shares of the height of the capitals.
struct Lettering {
    double capHeight = 10;
    double weight = 0.14;
    double tracking = 0;
};

// The outline of the line, its baseline beginning at the origin. The alphabet holds the capitals
// and figures that the pictures need; any other letter throws std::out_of_range.
[[nodiscard]] QPainterPath letteringPath(std::string_view text, const Lettering& lettering);

[[nodiscard]] QPainterPath centredLettering(std::string_view text, const Lettering& lettering,
                                            QPointF middleOfBaseline);

} // namespace quillet::artwork
