#pragma once

#include "cards/card_numbers.h"

#include <QPainter>
#include <QPainterPath>
#include <QPointF>
#include <QRgb>

namespace quillet
{

inline constexpr double suitMarkHeight = 18;
inline constexpr QRgb cardRed = 0xffc8102e;
inline constexpr QRgb cardBlack = 0xff17161b;

[[nodiscard]] constexpr QRgb suitColour(int suit)
{
    return suit == diamonds || suit == hearts ? cardRed : cardBlack;
}

// The outline of a suit mark: upright, suitMarkHeight high, centred on the origin.
[[nodiscard]] const QPainterPath& pipOutline(int suit);

void paintPip(QPainter& painter, int suit, QPointF centre, double height, QRgb colour);

} // namespace quillet
