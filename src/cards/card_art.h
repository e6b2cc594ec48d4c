#pragma once

#include <QImage>
#include <QSize>

namespace quillet
{

// Size of a card at scale 1, in logical pixels. The one place where the card size is decided.
inline constexpr int cardArtWidth = 96;
inline constexpr int cardArtHeight = 130;

// The picture of a card, exactly `deviceSize` pixels, ARGB32 premultiplied: faces are 0..51
// ((rank - 1) * 4 + suit; clubs, diamonds, hearts, spades), backs 53..65. Outside the rounded
// corners it is transparent, inside the edge opaque. Back 53, the see-through overlay, holds exact
// white and one ink colour only. A number that names no card gives a blank one.
[[nodiscard]] QImage renderCard(int cardNumber, QSize deviceSize);

} // namespace quillet
