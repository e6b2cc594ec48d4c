#include "assets/make/pictures/table.h"

#include "assets/make/pictures/cloth.h"
#include "assets/make/pictures/pay_plate.h"
#include "assets/make/pictures/table_geometry.h"
#include "assets/make/pictures/wood.h"

#include <cmath>

namespace quillet
{

namespace
{

constexpr QRectF wholeTable{0, 0, 800, 440};

QRectF tray()
{
    return {QPointF(playField.left(), trayTop), playField.bottomRight()};
}

QRectF upperField()
{
    return {playField.topLeft(), QPointF(playField.right(), trayTop)};
}

// Crossbanding: a narrow band round the field whose grain runs across it, mitred at the corners.
void paintRim(Canvas& canvas, const Wood& wood)
{
    const double middle = framedArea.center().x();
    canvas.shade(rectanglePath(wholeTable), [&](double x, double y) {
        const double across = std::min(x - framedArea.left(), framedArea.right() - x);
        const double down = std::min(y - framedArea.top(), framedArea.bottom() - y);
        const bool upright = across < down && x < framedArea.right();
        return upright ? wood.at(x < middle ? x : x + 400, y) : wood.at(y, x + 900);
    });
}

void paintLines(Canvas& canvas, const InlayMaterial& metal)
{
    const QRectF field = playField;
    const double line = 1.5;
    const double rule = trayTop;
    QPainterPath lines =
        between(rectanglePath(field.adjusted(-line, -line, line, line)), rectanglePath(field));
    lines.addRect(QRectF(field.left(), rule - line / 2, field.width(), line));
    inlay(canvas, lines, metal);
}

// A fine frame round the deck, so that its place is there when the deck is in the air.
void paintDeckFrame(Canvas& canvas, const InlayMaterial& metal)
{
    const QRectF frame = deckPlace.adjusted(-7, -7, 7, 7);
    inlay(canvas, between(scoopedPath(frame, 4), scoopedPath(frame.adjusted(1, 1, -1, -1), 4)),
          metal);
}

// The light falls on the middle of the table; the frame shades its edges.
void paintLight(Canvas& canvas, double strength)
{
    const QPainterPath whole = rectanglePath(wholeTable);
    canvas.shade(whole, [strength](double x, double y) {
        const double dx = (x - 300) / 420;
        const double dy = (y - 190) / 330;
        const double away = std::min(1.0, dx * dx + dy * dy);
        return rgb(0x080301, strength * away);
    });
    sink(canvas, rectanglePath(framedArea), 6, 0.75);
}

void paintWorks(Canvas& canvas, const Ornament& ornament)
{
    paintDeckFrame(canvas, ornament.metal);
    paintEmblem(canvas, ornament, emblemArea);
    paintPayPlate(canvas, ornament, payPlate);
}

} // namespace

Canvas woodTable()
{
    Canvas canvas(tableSize, tableScale);
    const Wood rim({rgb(0x7a4526), rgb(0x3a1c0d), 9, 0.4, 0.8, 1e9, 11});
    const Wood field({rgb(0xc08049), rgb(0x6b3a1c), 15, 1, 1, 150, 23});
    const Wood sunk({rgb(0x8a5230), rgb(0x47240f), 12, 0.7, 1, 1e9, 37});
    paintRim(canvas, rim);
    canvas.shade(rectanglePath(upperField()), [&](double x, double y) { return field.at(x, y); });
    canvas.shade(rectanglePath(tray()), [&](double x, double y) { return sunk.at(x, y); });
    sink(canvas, rectanglePath(tray()), 7, 0.7);
    paintLight(canvas, 0.42);
    paintLines(canvas, brass());
    paintWorks(canvas, {brass(), ivory(), {rgb(0xd2583c), rgb(0x9c2f1f), 0.8}, rgb(0x22130b)});
    return canvas;
}

Canvas feltTable()
{
    Canvas canvas(tableSize, tableScale);
    const Wood rim({rgb(0x8a4f2b), rgb(0x43210f), 9, 0.4, 0.8, 1e9, 41});
    const Felt cloth(rgb(0x1f6b45), 43);
    paintRim(canvas, rim);
    canvas.shade(rectanglePath(playField), [&](double x, double y) { return cloth.at(x, y); });
    sink(canvas, rectanglePath(playField), 6, 0.8);
    paintLight(canvas, 0.45);
    paintWorks(canvas, {brass(), ivory(), {rgb(0xe0604a), rgb(0xa83526), 0.8}, rgb(0x0b2a1b)});
    return canvas;
}

Canvas nightTable()
{
    Canvas canvas(tableSize, tableScale);
    const Wood rim({rgb(0x6a4630), rgb(0x2e1b10), 9, 0.4, 0.8, 1e9, 53});
    const Leather hide(rgb(0x23365f), 59);
    paintRim(canvas, rim);
    canvas.shade(rectanglePath(playField), [&](double x, double y) { return hide.at(x, y); });
    sink(canvas, rectanglePath(playField), 6, 0.8);
    paintLight(canvas, 0.45);
    paintWorks(canvas, {silver(), ivory(), {rgb(0xd8685a), rgb(0xa03a34), 0.8}, rgb(0x0d1526)});
    return canvas;
}

} // namespace quillet
