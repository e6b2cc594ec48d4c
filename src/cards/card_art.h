#pragma once

#include <QImage>
#include <QSize>

#include <cstdint>

namespace quillet
{

// Size of a card at scale 1, in logical pixels. All other sizes of cards are derived from it.
inline constexpr int cardArtWidth = 96;
inline constexpr int cardArtHeight = 130;

// The picture of a card, exactly `deviceSize` pixels, ARGB32 premultiplied: transparent outside the
// rounded corners, opaque inside the edge. The hatch, the see-through overlay, has only exact white
// and one ink colour. Unknown numbers give a blank card.
[[nodiscard]] QImage renderCard(std::int32_t cardNumber, QSize deviceSize);

} // namespace quillet
