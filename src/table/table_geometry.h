#pragma once

#include <QPointF>
#include <QRectF>
#include <QSizeF>

#include <array>
#include <vector>

namespace quillet
{

// The sizes from which the places on the table are computed, in logical pixels.
struct TableMeasures {
    double innerWidth = 0;
    double innerHeight = 0;
    double cardWidth = 0;  // cWidth
    double cardHeight = 0; // cHeight
    double statusBarHeight = 0;
    double chartWidth = 0;
};

// The table of the pictures that come with the program, on a normal screen.
inline constexpr TableMeasures designedTable{800, 514, 96, 130, 60, 169};

// The frame pieces, as designed; a painted piece is stretched in its long direction.
enum class FramePiece { picTop, picBottom, picSide1, picSide2 };
inline constexpr std::array allFramePieces{FramePiece::picTop, FramePiece::picBottom,
                                           FramePiece::picSide1, FramePiece::picSide2};
// Their files below frame/, without extension.
inline constexpr std::array frameFiles{"top", "bottom", "side1", "side2"};
inline constexpr double frameEdgeHeight = 14; // picTop, picBottom
inline constexpr double frameSideWidth = 13;  // picSide1, picSide2
inline constexpr double statusBarWidth = 468;

struct FramePlace {
    FramePiece piece;
    QRectF rect;
    friend bool operator==(const FramePlace&, const FramePlace&) = default;
};

// Offset between cards of the pile.
inline constexpr QPoint pileStep{2, 1};
// Offset of the flying card from the deck's top left corner.
inline constexpr QPointF flyingCardOffset{8, 4};

[[nodiscard]] QSizeF deckSize(const TableMeasures& table);
[[nodiscard]] QSizeF rejectPileSize(const TableMeasures& table);

// Places before the first game.
[[nodiscard]] QRectF firstRejectPlace(const TableMeasures& table);
[[nodiscard]] QRectF firstDeckPlace(const TableMeasures& table);
[[nodiscard]] std::vector<FramePlace> firstFrame(const TableMeasures& table);

// Places during a game; the card row is aligned with the deck.
[[nodiscard]] QRectF rejectPlace(const TableMeasures& table);
[[nodiscard]] QRectF deckPlace(const TableMeasures& table);
[[nodiscard]] std::array<QRectF, 5> cardPlaces(const TableMeasures& table);
// In painting order: later pieces cover earlier ones.
[[nodiscard]] std::vector<FramePlace> tableFrame(const TableMeasures& table);
// The piece along the chart's left edge.
[[nodiscard]] FramePlace chartFrame(const TableMeasures& table);

[[nodiscard]] QRectF chartPlace(const TableMeasures& table);
[[nodiscard]] QRectF statusBarPlace(const TableMeasures& table);

} // namespace quillet
