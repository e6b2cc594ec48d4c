#pragma once

#include <QRectF>

#include <array>

namespace quillet
{

// Where things lie on the table, in the picture's units; the program puts them there.
inline constexpr QSize tableSize{800, 440};
inline constexpr double tableScale = 2; // the pictures are kept at twice their size

inline constexpr QRectF playField{20, 21, 579, 400};
inline constexpr QSizeF cardSize{96, 130};
inline constexpr double cardsTop = 284.3;
inline constexpr QRectF deckSeen{201, 91, 102, 133}; // the pile of four, not its box
inline constexpr QRectF emblemArea{23, 24, 168, 248};
inline constexpr QRectF payPlate{326, 34, 262, 228};

[[nodiscard]] inline std::array<QRectF, 5> cardPlaces()
{
    std::array<QRectF, 5> places;
    for (int i = 0; i < 5; ++i)
        places[static_cast<std::size_t>(i)] = QRectF(QPointF(40 + 110.4 * i, cardsTop), cardSize);
    return places;
}

// What the frame's pieces leave free: the play area lies left of the chart's own frame piece.
inline constexpr QRectF framedArea{13, 14, 593, 414};

} // namespace quillet
