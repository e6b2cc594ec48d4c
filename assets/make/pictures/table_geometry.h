#pragma once

#include "table/table_geometry.h"

#include <QRectF>

#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

namespace quillet::artwork
{

// Positions on the table, in the picture's units, as the program uses them.
inline const QSize tableSize =
    QSizeF(designedTable.innerWidth,
           designedTable.innerHeight - designedTable.statusBarHeight - frameEdgeHeight)
        .toSize();
inline constexpr double tableScale = 2; // the pictures are stored at twice their size

[[nodiscard]] inline std::array<QRectF, 5> cardPlaces()
{
    return quillet::cardPlaces(designedTable);
}

// The pile of four cards, not its box.
[[nodiscard]] inline QRectF deckSeen()
{
    const QPointF corner = deckPlace(designedTable).topLeft();
    return {std::nearbyint(corner.x()), std::nearbyint(corner.y()),
            designedTable.cardWidth + 3 * pileStep.x(),
            designedTable.cardHeight + 3 * pileStep.y()};
}

// The area inside the frame's pieces, up to the piece left of the chart.
[[nodiscard]] inline QRectF framedArea()
{
    const std::vector<FramePlace> frame = tableFrame(designedTable);
    const auto bottom = std::ranges::find(frame, FramePiece::picBottom, &FramePlace::piece);
    return {QPointF(frameSideWidth, frameEdgeHeight),
            QPointF(chartFrame(designedTable).rect.left(), bottom->rect.top())};
}

// Its covered part.
[[nodiscard]] inline QRectF playField()
{
    return framedArea().adjusted(7, 7, -7, -7);
}

inline constexpr QRectF emblemArea{23, 24, 168, 248};
inline constexpr QRectF payPlate{326, 34, 262, 228};

} // namespace quillet::artwork
