#pragma once

#include "assets/make/pictures/canvas.h"

namespace quillet::artwork
{

// The three tables of Preferences.
[[nodiscard]] Canvas woodTable();
[[nodiscard]] Canvas feltTable();
[[nodiscard]] Canvas nightTable();

} // namespace quillet::artwork
