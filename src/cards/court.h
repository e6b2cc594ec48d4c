#pragma once

#include "cards/picture_text.h"

namespace quillet
{

// The colours of a court. Six in all: w white, k black, r red, g gold, b blue, s skin; the roles
// R robe, L lining, P pattern, H hair, C cap and S sash stand for some of them.
[[nodiscard]] Palette courtPalette(int rank, int suit);

// Upper half figures on the grid, looking out of the court's frame. What lies below the slanted
// line through the middle is covered later.
void paintKing(QPainter& painter, int suit, const Palette& palette);
void paintQueen(QPainter& painter, int suit, const Palette& palette);
void paintJack(QPainter& painter, int suit, const Palette& palette);

// Fills an area of cloth with the robe colour, the pattern of the suit and an outline.
void paintCloth(QPainter& painter, std::string_view outline, int suit, const Palette& palette);

// A closed hand, with its cuff below, around a staff at x = 67.
void paintHand(QPainter& painter, const Palette& palette);

} // namespace quillet
