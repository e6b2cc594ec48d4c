#pragma once

#include <QPainterPath>

namespace quillet
{

inline constexpr double rankMarkHeight = 22;

// The outline of a rank (1..13) for the corner index, in device pixels: rankMarkHeight high on the
// grid, centred on x = `centre`, its top at `top`. Stems and bars are moved onto whole device
// pixels, so they are sharp at every scale.
[[nodiscard]] QPainterPath rankOutline(int rank, double centre, double top, double scaleX,
                                       double scaleY);

} // namespace quillet
