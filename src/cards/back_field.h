#pragma once

#include "cards/card_canvas.h"

#include <QRgb>

#include <functional>

namespace quillet
{

// The corner of the printed area of a back, inside its white margin, on the grid.
inline constexpr double fieldLeft = 6;
inline constexpr double fieldTop = 6;

// Fills the printed area with `ground`, lets `paint` draw on the grid, clipped to the area, and
// draws a thin frame around it.
void paintField(CardCanvas& canvas, QRgb ground, QRgb frame,
                const std::function<void(QPainter&)>& paint);

void paintPlaid(CardCanvas& canvas);
void paintWeave(CardCanvas& canvas);
void paintRobot(CardCanvas& canvas);
void paintRoses(CardCanvas& canvas);
void paintIvy(CardCanvas& canvas, bool onBlue);
void paintFish(CardCanvas& canvas, bool onBlue);
void paintShell(CardCanvas& canvas);
void paintCastle(CardCanvas& canvas);
void paintBeach(CardCanvas& canvas);
void paintSleeve(CardCanvas& canvas);

} // namespace quillet
