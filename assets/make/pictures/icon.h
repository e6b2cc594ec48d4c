#pragma once

#include "assets/make/pictures/flat_drawing.h"

#include <array>

namespace quillet::artwork
{

inline constexpr std::array iconSizes{16, 22, 24, 32, 48, 64, 128, 256, 512};

enum class Program { trainer, practice };

// Two cards and a quill; for practice, a tick takes the place of the heart. Below 48 pixels a
// simpler drawing.
[[nodiscard]] FlatDrawing iconDrawing(int size, Program program);

} // namespace quillet::artwork
