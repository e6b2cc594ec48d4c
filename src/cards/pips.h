#pragma once

#include <QPainter>
#include <QPainterPath>
#include <QPointF>
#include <QRgb>

namespace quillet
{

enum Suit { Clubs, Diamonds, Hearts, Spades };

inline constexpr QRgb cardRed = 0xffc8102e;
inline constexpr QRgb cardBlack = 0xff17161b;

[[nodiscard]] constexpr QRgb suitColour(int suit)
{
    return suit == Diamonds || suit == Hearts ? cardRed : cardBlack;
}

// The outline of a suit mark: upright, 18 high, centred on the origin.
[[nodiscard]] const QPainterPath& pipOutline(int suit);

void paintPip(QPainter& painter, int suit, QPointF centre, double height, QRgb colour);

} // namespace quillet
