#pragma once

#include <QImage>
#include <QSize>

#include <cstdint>

namespace quillet
{

// Size of a card at scale 1, in logical pixels. The one place where the card size is decided.
inline constexpr int cardArtWidth = 96;
inline constexpr int cardArtHeight = 130;

// The picture of a card, exactly `deviceSize` pixels, ARGB32 premultiplied. Outside the rounded
// corners it is transparent, inside the edge opaque. The hatch, the see-through overlay, holds
// exact white and one ink colour only. A number that names no card gives a blank one.
[[nodiscard]] QImage renderCard(std::int32_t cardNumber, QSize deviceSize);

} // namespace quillet
