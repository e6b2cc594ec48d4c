#pragma once

#include "assets/make/pictures/canvas.h"

namespace quillet
{

// The four pieces of the table's frame. The window stretches each along its length, to 800 and
// 514; they are drawn so that the corners are right after that.
enum class FramePiece { top, bottom, left, right };

[[nodiscard]] Canvas framePiece(FramePiece piece);

} // namespace quillet
