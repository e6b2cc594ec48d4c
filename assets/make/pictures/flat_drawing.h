#pragma once

#include "assets/make/pictures/canvas.h"

#include <QByteArray>

#include <vector>

namespace quillet::artwork
{

// A drawing in plain colours in a square box, its lowest part first.
struct FlatShape {
    QPainterPath path;
    Colour colour;
};
struct FlatDrawing {
    double side = 64;
    std::vector<FlatShape> shapes;
};

// Renders the drawing as a picture of `size` by `size` pixels.
[[nodiscard]] Canvas toPixels(const FlatDrawing& drawing, int size);
[[nodiscard]] QByteArray toSvg(const FlatDrawing& drawing);

} // namespace quillet::artwork
