#pragma once

#include "assets/make/pictures/canvas.h"

namespace quillet::artwork
{

// The three tables that a player can choose from.
[[nodiscard]] Canvas woodTable();
[[nodiscard]] Canvas feltTable();
[[nodiscard]] Canvas nightTable();

} // namespace quillet::artwork
