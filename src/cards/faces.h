#pragma once

#include "cards/card_canvas.h"

namespace quillet
{

// The upper left corner of the frame around a court card's figure, on the grid.
inline constexpr double courtLeft = 22;
inline constexpr double courtTop = 8;

// Rank and suit mark in the upper left corner.
void paintIndex(CardCanvas& canvas, int rank, int suit);

// Ranks 1..10: the whole face.
void paintNumberFace(CardCanvas& canvas, int rank, int suit);

// Ranks 11..13: the whole face.
void paintCourtFace(CardCanvas& canvas, int rank, int suit);

} // namespace quillet
