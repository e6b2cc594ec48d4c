#pragma once

#include "assets/make/pictures/canvas.h"

namespace quillet::artwork
{

// The material of lines, letters and marks.
struct InlayMaterial {
    Colour light;
    Colour dark;
    double bevel = 1; // strength of the light on the edges
};

[[nodiscard]] InlayMaterial brass();
[[nodiscard]] InlayMaterial silver();
[[nodiscard]] InlayMaterial ivory();

// Inlays the shape in the surface: a dark joint around it, then the material with a soft sheen, its
// edges lit from the upper left.
void inlay(Canvas& canvas, const QPainterPath& shape, const InlayMaterial& material);

// Makes the shape look sunk: its edges are darkened, with the light from the upper left. `depth` is
// in the canvas's units.
void sink(Canvas& canvas, const QPainterPath& shape, double depth, double strength);

void castShadow(Canvas& canvas, const QPainterPath& shape, double distance, double strength);

[[nodiscard]] QPainterPath rectanglePath(const QRectF& rectangle);
[[nodiscard]] QPainterPath roundedPath(const QRectF& rectangle, double radius);

// A rectangle with concave corners, as on an engraved plate.
[[nodiscard]] QPainterPath scoopedPath(const QRectF& rectangle, double radius);

// The band between two outlines.
[[nodiscard]] QPainterPath between(const QPainterPath& outer, const QPainterPath& inner);

} // namespace quillet::artwork
