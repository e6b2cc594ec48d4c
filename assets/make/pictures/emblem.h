#pragma once

#include "assets/make/pictures/inlay.h"

namespace quillet::artwork
{

// The materials of the pictures on a table.
struct Ornament {
    InlayMaterial metal;   // lines, figures, names
    InlayMaterial accent;  // the quill, the name, the best line of the pay table
    InlayMaterial redSuit; // hearts and diamonds
    Colour ground;         // behind letters and marks
};

// The letter Q made of a ring and a quill, the four suits inside, the name below.
void paintEmblem(Canvas& canvas, const Ornament& ornament, const QRectF& area);

} // namespace quillet::artwork
