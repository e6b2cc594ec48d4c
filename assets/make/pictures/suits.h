#pragma once

#include <QPainterPath>

#include <array>

namespace quillet
{

enum class Suit { spade, heart, club, diamond };
inline constexpr std::array allSuits{Suit::spade, Suit::heart, Suit::club, Suit::diamond};

// The suit mark, about `height` high, centred on the point.
[[nodiscard]] QPainterPath suitMark(Suit suit, QPointF centre, double height);

} // namespace quillet
