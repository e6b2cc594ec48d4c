#pragma once

#include <QPainterPath>

#include <string_view>

namespace quillet
{

// The outline that the text describes (see path_text.h), without letter strokes.
[[nodiscard]] QPainterPath readPath(std::string_view text);

// `half` joined with its reflection in the line x = axis. `half` starts and ends on this line.
[[nodiscard]] QPainterPath completedAcross(const QPainterPath& half, double axis);

} // namespace quillet
