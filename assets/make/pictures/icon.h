#pragma once

#include "assets/make/pictures/canvas.h"

#include <QByteArray>

#include <array>
#include <vector>

namespace quillet
{

inline constexpr std::array iconSizes{16, 22, 24, 32, 48, 64, 128, 256, 512};

// A drawing in plain colours, its parts from the lowest to the topmost, in a square box.
struct FlatShape {
    QPainterPath path;
    Color color;
};
struct FlatDrawing {
    double side = 64;
    std::vector<FlatShape> shapes;
};

// Two cards and a quill. Below 48 pixels it is drawn anew with less in it.
[[nodiscard]] FlatDrawing iconDrawing(int size);
[[nodiscard]] Canvas icon(int size);

[[nodiscard]] QByteArray toSvg(const FlatDrawing& drawing);

} // namespace quillet
