#pragma once

#include "assets/make/pictures/canvas.h"

namespace quillet::artwork
{

// What lines, letters and marks are made of.
struct InlayMaterial {
    Colour light;
    Colour dark;
    double bevel = 1; // how plainly the edges catch the light
};

[[nodiscard]] InlayMaterial brass();
[[nodiscard]] InlayMaterial silver();
[[nodiscard]] InlayMaterial ivory();

// Lets the shape into the surface: a dark joint round it, then the material with a slow sheen,
// its edges lit from the upper left.
void inlay(Canvas& canvas, const QPainterPath& shape, const InlayMaterial& material);

// A sunk field: darkened along its edges as if light fell in from above left. `depth` in the
// canvas's units.
void sink(Canvas& canvas, const QPainterPath& shape, double depth, double strength);

void castShadow(Canvas& canvas, const QPainterPath& shape, double distance, double strength);

[[nodiscard]] QPainterPath rectanglePath(const QRectF& rectangle);
[[nodiscard]] QPainterPath roundedPath(const QRectF& rectangle, double radius);

// A rectangle whose corners are scooped out, as on an engraved plate.
[[nodiscard]] QPainterPath scoopedPath(const QRectF& rectangle, double radius);

// The band between two outlines.
[[nodiscard]] QPainterPath between(const QPainterPath& outer, const QPainterPath& inner);

} // namespace quillet::artwork
