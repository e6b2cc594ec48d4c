#pragma once

#include "assets/make/pictures/emblem.h"

namespace quillet::artwork
{

// The pay table for five credits, on a dark plate set into the table.
void paintPayPlate(Canvas& canvas, const Ornament& ornament, const QRectF& plate);

} // namespace quillet::artwork
