#pragma once

#include "assets/make/pictures/canvas.h"
#include "table/table_geometry.h"

namespace quillet::artwork
{

// A piece of the table's frame. The window stretches each piece along its length; the corners are
// right after that.
[[nodiscard]] Canvas framePiece(FramePiece piece);

} // namespace quillet::artwork
