#pragma once

#include "assets/make/pictures/flat_drawing.h"

#include <array>

namespace quillet::artwork
{

inline constexpr std::array iconSizes{16, 22, 24, 32, 48, 64, 128, 256, 512};

// Two cards and a quill. Below 48 pixels a simpler drawing.
[[nodiscard]] FlatDrawing iconDrawing(int size);

} // namespace quillet::artwork
