#pragma once

#include <QPainterPath>

namespace quillet
{

// An outline that is written as text, such as "M0 0 L4 0 L2 3 Z". Coordinates are absolute, y
// points down. A mistake in the text asserts.
//   M x y              move               L x y              line
//   Q x1 y1 x y        quadratic curve    C x1 y1 x2 y2 x y  cubic curve
//   O x y r            circle             R x y width height rectangle
//   Z                  close
[[nodiscard]] QPainterPath readPath(const char* text);

} // namespace quillet
