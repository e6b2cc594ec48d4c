#pragma once

#include <QColor>

#include <cstdint>

namespace quillet
{

// The colour that a desktop has under this number, 0..24, such as 8 for the text of its windows; an
// unknown number is that, too.
[[nodiscard]] QColor desktopColour(std::uint32_t number);

} // namespace quillet
