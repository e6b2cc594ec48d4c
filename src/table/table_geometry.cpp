#include "table/table_geometry.h"

namespace quillet
{

namespace
{

constexpr double margin = 12; // around chart and status bar
constexpr double picComputerHandLeft = 92;

QRectF deckBeside(const QRectF& reject, const TableMeasures& table, double lower)
{
    return {{reject.x() + 0.75 * reject.width(), reject.y() - reject.height() / 4 + lower},
            deckSize(table)};
}

FramePlace topPiece(const TableMeasures& table)
{
    return {FramePiece::picTop, {0, 0, table.innerWidth, frameEdgeHeight}};
}

FramePlace bottomPiece(const TableMeasures& table, double above)
{
    return {FramePiece::picBottom,
            {0, table.innerHeight - above - frameEdgeHeight, table.innerWidth, frameEdgeHeight}};
}

FramePlace leftPiece(const TableMeasures& table)
{
    return {FramePiece::picSide1, {0, 0, frameSideWidth, table.innerHeight}};
}

FramePlace rightPiece(const TableMeasures& table, double right)
{
    return {FramePiece::picSide2, {right - frameSideWidth, 0, frameSideWidth, table.innerHeight}};
}

} // namespace

QSizeF deckSize(const TableMeasures& table)
{
    return {table.cardWidth * 1.1, table.cardHeight * 1.1};
}

QSizeF rejectPileSize(const TableMeasures& table)
{
    return {table.cardWidth * 1.3, table.cardHeight * 1.1};
}

QRectF firstRejectPlace(const TableMeasures& table)
{
    const QSizeF size = rejectPileSize(table);
    return {{1.5 * picComputerHandLeft, table.innerHeight / 2 - size.height() / 2}, size};
}

QRectF firstDeckPlace(const TableMeasures& table)
{
    return deckBeside(firstRejectPlace(table), table, 0);
}

std::vector<FramePlace> firstFrame(const TableMeasures& table)
{
    return {topPiece(table), bottomPiece(table, 0), leftPiece(table),
            rightPiece(table, table.innerWidth)};
}

QRectF rejectPlace(const TableMeasures& table)
{
    return {{107, 97}, rejectPileSize(table)};
}

QRectF deckPlace(const TableMeasures& table)
{
    return deckBeside(rejectPlace(table), table, table.statusBarHeight / 2);
}

std::array<QRectF, 5> cardPlaces(const TableMeasures& table)
{
    const QRectF deck = deckPlace(table);
    std::array<QRectF, 5> places;
    double left = 40;
    for (QRectF& place : places) {
        place = {left, deck.y() + 1.35 * deck.height(), table.cardWidth, table.cardHeight};
        left += 1.15 * table.cardWidth;
    }
    return places;
}

std::vector<FramePlace> tableFrame(const TableMeasures& table)
{
    return {topPiece(table), bottomPiece(table, table.statusBarHeight + margin), leftPiece(table),
            rightPiece(table, table.innerWidth), bottomPiece(table, 0)};
}

FramePlace chartFrame(const TableMeasures& table)
{
    return rightPiece(table, chartPlace(table).x());
}

QRectF chartPlace(const TableMeasures& table)
{
    return {table.innerWidth - table.chartWidth - margin, margin, table.chartWidth,
            table.innerHeight - 2 * margin};
}

QRectF statusBarPlace(const TableMeasures& table)
{
    return {margin, table.innerHeight - table.statusBarHeight - margin, statusBarWidth,
            table.statusBarHeight};
}

} // namespace quillet
