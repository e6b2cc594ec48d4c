#pragma once

#include <QColor>

#include <cstdint>

namespace quillet
{

// The colour that a desktop has under this number, 0..24, such as 8 for the text of its windows; an
// unknown number gives that one.
[[nodiscard]] QColor desktopColour(std::uint32_t number);

// A colour 0x00BBGGRR; with the top bit set, the one that the desktop has under the number in the
// rest.
[[nodiscard]] QColor colourOf(std::uint32_t bgr);
// The inverse.
[[nodiscard]] std::uint32_t bgrOf(const QColor& colour);

} // namespace quillet
