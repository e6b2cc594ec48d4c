#pragma once

#include "shapes/rank_marks.h"

#include <QPainterPath>
#include <QTransform>

namespace quillet
{

// Height of a rank in the corner index, on the grid of 96 x 130.
inline constexpr double rankHeight = rankMarkHeight;

// The outline of a rank (1..13) for the corner index, in device pixels: `rankHeight` high on the
// grid, centred on x = `centre`, its top at `top`. Stems and bars are moved onto whole device
// pixels, so that they are sharp at every factor.
[[nodiscard]] QPainterPath rankOutline(int rank, double centre, double top, double scaleX,
                                       double scaleY);

} // namespace quillet
