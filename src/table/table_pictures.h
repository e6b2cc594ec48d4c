#pragma once

#include "table/picture_file.h"
#include "table/surface.h"
#include "table/table_geometry.h"

#include <QImage>

#include <array>

namespace quillet
{

class PictureBox;
class TableCanvas;

// An off-screen picture with a place on the table.
struct OffScreenBox {
    QRectF place;
    Surface picture;
};

// The pictures the table is made of. The boxes and the canvas are
// widgets and belong to the window as such.
struct TablePictures {
    TableCanvas* canvas = nullptr;
    std::array<PictureBox*, 4> picDeal{};  // the deck; index 0 lies on top
    std::array<PictureBox*, 5> picPoker{}; // the card places, left to right

    LoadedPicture thePic;              // the table's background
    std::array<QImage, 4> framePieces; // by FramePiece
    Surface BoardBuffer;               // the table that a flight draws on
    Surface picBuffer;                 // the table under the flying card
    OffScreenBox picAnimate;           // the flying card
    OffScreenBox picReject;            // the reject pile, never shown
    OffScreenBox picRejectBack;
    OffScreenBox picDealBack; // the table behind the deck
};

} // namespace quillet
