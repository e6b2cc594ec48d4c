#include "cards/card_drawing.h"
#include "cards/faces.h"
#include "cards/index_glyphs.h"
#include "cards/pips.h"

#include <array>
#include <cstddef>
#include <vector>

namespace quillet
{
namespace
{

constexpr double indexCentre = 10.5;
constexpr double indexTop = 7;
// Four pixels between the index and the columns, so that it is not counted as a pip.
constexpr double indexPipHeight = 14;
constexpr double bodyPipHeight = 20;

// Body pips on the grid. Those in `upper` are repeated in the lower half, upside down.
struct PipLayout {
    std::vector<QPointF> upper;
    std::vector<QPointF> alone;
};

constexpr double left = 32;
constexpr double middle = 48;
constexpr double right = 64;
constexpr double top = 22;
constexpr double upperThird = 50.7;
constexpr double centre = 65;

const PipLayout& layoutOf(int rank)
{
    static const std::array<PipLayout, 11> layouts = {{
        {},
        {},
        {{{middle, top}}, {}},
        {{{middle, top}}, {{middle, centre}}},
        {{{left, top}, {right, top}}, {}},
        {{{left, top}, {right, top}}, {{middle, centre}}},
        {{{left, top}, {right, top}}, {{left, centre}, {right, centre}}},
        {{{left, top}, {right, top}},
         {{left, centre}, {right, centre}, {middle, (top + centre) / 2}}},
        {{{left, top}, {right, top}, {middle, (top + centre) / 2}},
         {{left, centre}, {right, centre}}},
        {{{left, top}, {right, top}, {left, upperThird}, {right, upperThird}}, {{middle, centre}}},
        {{{left, top},
          {right, top},
          {left, upperThird},
          {right, upperThird},
          {middle, (top + upperThird) / 2}},
         {}},
    }};
    return layouts[static_cast<std::size_t>(rank)];
}

// Paints a pip with its top and bottom on whole device pixels. The right column is an exact mirror
// image of the left one, also for odd widths.
void paintCrispPip(CardCanvas& canvas, int suit, QPointF place, double height)
{
    const double x = place.x() < middle   ? canvas.snappedX(place.x())
                     : place.x() > middle ? 2 * middle - canvas.snappedX(2 * middle - place.x())
                                          : middle;
    const double crispHeight = canvas.snappedY(height);
    const double y = canvas.snappedY(place.y() - crispHeight / 2) + crispHeight / 2;
    QPainter painter;
    canvas.begin(painter);
    paintPip(painter, suit, {x, y}, crispHeight, suitColour(suit));
}

void paintAce(CardCanvas& canvas, int suit)
{
    canvas.turnUpperHalf();
    if (suit != spades)
        return paintCrispPip(canvas, suit, {middle, centre}, 44);
    QPainter painter;
    canvas.begin(painter);
    paintPip(painter, suit, {middle, centre}, 62, cardBlack);
    paintPip(painter, suit, {middle, centre - 0.5}, 54, 0xffffffff);
    paintPip(painter, suit, {middle, centre - 0.5}, 51, cardBlack);
    CardDrawing("ace-of-spades").paint(painter);
}

} // namespace

void paintIndex(CardCanvas& canvas, int rank, int suit)
{
    QPainter painter;
    canvas.beginInPixels(painter);
    painter.fillPath(rankOutline(rank, indexCentre, indexTop, canvas.scaleX(), canvas.scaleY()),
                     QColor::fromRgba(suitColour(suit)));
    painter.end();
    paintCrispPip(canvas, suit, {indexCentre, indexTop + rankMarkHeight + 3 + indexPipHeight / 2},
                  indexPipHeight);
}

void paintNumberFace(CardCanvas& canvas, int rank, int suit)
{
    paintIndex(canvas, rank, suit);
    if (rank == 1) {
        paintAce(canvas, suit);
        return;
    }
    const PipLayout& layout = layoutOf(rank);
    const auto paint = [&](const std::vector<QPointF>& places) {
        for (const QPointF place : places)
            paintCrispPip(canvas, suit, place, bodyPipHeight);
    };
    paint(layout.upper);
    canvas.turnUpperHalf();
    paint(layout.alone);
}

} // namespace quillet
