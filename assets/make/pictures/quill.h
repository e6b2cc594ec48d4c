#pragma once

#include <QPainterPath>

namespace quillet::artwork
{

// A writing quill in parts, so that each can have its own colour.
struct Quill {
    QPainterPath vane;
    QPainterPath barbs; // fine lines across the vane
    QPainterPath shaft; // from the tip of the feather to where the nib begins
    QPainterPath nib;
};

// The quill from the point of its nib to the tip of its feather. A larger `breadth` makes it
// stouter, for small pictures.
[[nodiscard]] Quill quill(QPointF point, QPointF tip, double breadth = 1);

} // namespace quillet::artwork
