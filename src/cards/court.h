#pragma once

#include "cards/picture_text.h"

#include <QPainter>

#include <string_view>

namespace quillet
{

// The colours of a court: w white, k black, r red, g gold, b blue, s skin. The roles R robe,
// L lining, P pattern, H hair, C cap and S sash are some of these.
[[nodiscard]] Palette courtPalette(int rank, int suit);

// The upper half of a figure, on the grid. The part below the slanted line through the centre is
// covered later.
void paintKing(QPainter& painter, int suit, const Palette& palette);
void paintQueen(QPainter& painter, int suit, const Palette& palette);
void paintJack(QPainter& painter, int suit, const Palette& palette);

// Fills an area of cloth with the robe colour, the pattern of the suit and an outline.
void paintCloth(QPainter& painter, std::string_view outline, int suit, const Palette& palette);

// A closed hand, with its cuff below, around a staff at x = 67.
void paintHand(QPainter& painter, const Palette& palette);

} // namespace quillet
