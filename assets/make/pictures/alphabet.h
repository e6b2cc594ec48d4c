#pragma once

#include <QPainterPath>

#include <string_view>

namespace quillet::artwork
{

// The style of a line of capitals. `weight` and `tracking` are shares of the height of the
// capitals.
struct Lettering {
    double capHeight = 10;
    double weight = 0.14;
    double tracking = 0;
};

// The outline of a line of capitals and figures; its baseline starts at the origin. Throws
// std::out_of_range for letters that the alphabet lacks.
[[nodiscard]] QPainterPath letteringPath(std::string_view text, const Lettering& lettering);

[[nodiscard]] QPainterPath centredLettering(std::string_view text, const Lettering& lettering,
                                            QPointF middleOfBaseline);

} // namespace quillet::artwork
