#pragma once

#include "cards/card_canvas.h"

#include <QRgb>

#include <functional>

namespace quillet
{

// The corner of the printed area of a back, inside its white margin, on the grid.
inline constexpr double fieldLeft = 6;
inline constexpr double fieldTop = 6;

// Lets `paint` draw on the grid, clipped to the printed area, and draws a thin frame around it.
void paintField(CardCanvas& canvas, QRgb frame, const std::function<void(QPainter&)>& paint);

void paintPlaid(CardCanvas& canvas);
void paintWeave(CardCanvas& canvas);

} // namespace quillet
