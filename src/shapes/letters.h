#pragma once

#include <map>

namespace quillet
{

// A letter is a few pen strokes in a box one unit high, y downwards.
//   M x y  pen down          L x y  line            C x1 y1 x2 y2 x y  curve
//   A cx cy rx ry from sweep  arc of an ellipse, in degrees, counter-clockwise
//   O cx cy rx ry             whole ellipse
//   D x1 y1 x2 y2             slanted stroke downwards, its ends cut level
// The alphabet holds the capitals and figures that are needed.
[[nodiscard]] const std::map<char, const char*>& letterStrokes();

} // namespace quillet
