#pragma once

#include "assets/make/pictures/inlay.h"

namespace quillet::artwork
{

// A seam of short stitches along the lines, each in its own dent.
void sew(Canvas& canvas, const QPainterPath& line, const Colour& thread);

// A border pressed into leather: two lines along the rectangle's edge and a row of lozenges.
void tool(Canvas& canvas, const QRectF& rectangle, const InlayMaterial& foil);

} // namespace quillet::artwork
