#pragma once

namespace quillet::artwork
{

// The pen strokes of a capital or figure in a box one unit high, as text. Throws std::out_of_range
// for any other sign.
//   M x y, L x y, C x1 y1 x2 y2 x y   move, line and cubic curve
//   E x y rx ry                       ellipse
//   A x y rx ry from sweep            arc of an ellipse in degrees, counter-clockwise; starts a
//                                     stroke or continues it
//   D x1 y1 x2 y2                     slanted stroke with level ends
[[nodiscard]] const char* letterStrokes(char sign);

} // namespace quillet::artwork
