#pragma once

#include <QColor>
#include <QPainter>
#include <QRect>

namespace quillet
{

// The marks of a held card: an outline around it, and a line inside each of its sides. In device
// pixels.
void paintHoldMarker(QPainter& painter, const QRect& card, double scale, const QColor& colour);

// The frame of a card place that has the keyboard focus, just inside the place.
void paintFocusFrame(QPainter& painter, const QRect& place);

} // namespace quillet
