#pragma once

#include <QColor>

#include <cstdint>

namespace quillet
{

// A colour 0x00BBGGRR. With the top bit set, the rest is the number of a desktop colour, such as 8
// for the text of windows; an unknown number gives that one.
[[nodiscard]] QColor colourOf(std::uint32_t bgr);
// The inverse.
[[nodiscard]] std::uint32_t bgrOf(const QColor& colour);

} // namespace quillet
