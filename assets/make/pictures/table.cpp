#include "assets/make/pictures/table.h"

#include "assets/make/pictures/cloth.h"
#include "assets/make/pictures/needlework.h"
#include "assets/make/pictures/pay_plate.h"
#include "assets/make/pictures/table_geometry.h"
#include "assets/make/pictures/wood.h"

#include <algorithm>
#include <cstdint>

namespace quillet::artwork
{

namespace
{

const QRectF wholeTable(QPointF(0, 0), tableSize);

// The tray is the part of the field under the cards. Its upper line has the same distance from the
// cards as the nearest line below them.
double trayTop(double nextLineBelow)
{
    const QRectF card = cardPlaces().front();
    return card.top() - (nextLineBelow - card.bottom());
}

QRectF tray(double top)
{
    return {QPointF(playField().left(), top), playField().bottomRight()};
}

// Crossbanding: a narrow band around the field with its grain across, mitred at the corners.
void paintRim(Canvas& canvas, const Wood& wood)
{
    const QRectF area = framedArea();
    const double middle = area.center().x();
    canvas.shade(rectanglePath(wholeTable), [&](double x, double y) {
        const double across = std::min(x - area.left(), area.right() - x);
        const double down = std::min(y - area.top(), area.bottom() - y);
        const bool upright = across < down && x < area.right();
        return upright ? wood.at(x < middle ? x : x + 400, y) : wood.at(y, x + 900);
    });
}

void paintLines(Canvas& canvas, const InlayMaterial& metal)
{
    const QRectF field = playField();
    const double line = 1.5;
    QPainterPath lines =
        between(rectanglePath(field.adjusted(-line, -line, line, line)), rectanglePath(field));
    lines.addRect(QRectF(field.left(), trayTop(field.bottom()) - line, field.width(), line));
    inlay(canvas, lines, metal);
}

// A thin frame around the deck, visible while the deck moves.
void paintDeckFrame(Canvas& canvas, const InlayMaterial& metal)
{
    const QRectF frame = deckSeen().adjusted(-9, -9, 9, 9);
    inlay(canvas, between(scoopedPath(frame, 4), scoopedPath(frame.adjusted(1, 1, -1, -1), 4)),
          metal);
}

// The light falls on the middle of the table, and the frame shades its edges.
void paintLight(Canvas& canvas, double strength)
{
    const QPainterPath whole = rectanglePath(wholeTable);
    canvas.shade(whole, [strength](double x, double y) {
        const double dx = (x - 300) / 420;
        const double dy = (y - 190) / 330;
        const double away = std::min(1.0, dx * dx + dy * dy);
        return rgb(0x080301, strength * away);
    });
    sink(canvas, rectanglePath(framedArea()), 5, 0.7);
}

Wood rimWood(Colour light, Colour dark, std::uint32_t seed)
{
    return Wood(
        {.light = light, .dark = dark, .bandWidth = 9, .figure = 0.4, .pores = 0.8, .seed = seed});
}

// A table with a covered field.
template <typename Cover>
Canvas coveredTable(const Wood& rim, const Cover& cover)
{
    Canvas canvas(tableSize, tableScale);
    paintRim(canvas, rim);
    canvas.shade(rectanglePath(playField()), [&](double x, double y) { return cover.at(x, y); });
    sink(canvas, rectanglePath(playField()), 6, 0.8);
    paintLight(canvas, 0.45);
    return canvas;
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
    const Wood rim = rimWood(rgb(0x9a5c36), rgb(0x4a2612), 11);
    const Wood field({.light = rgb(0xc08049),
                      .dark = rgb(0x6b3a1c),
                      .bandWidth = 15,
                      .figure = 1,
                      .pores = 1,
                      .heart = 150,
                      .seed = 23});
    const Wood sunk({.light = rgb(0x8a5230),
                     .dark = rgb(0x47240f),
                     .bandWidth = 12,
                     .figure = 0.7,
                     .pores = 1,
                     .seed = 37});
    paintRim(canvas, rim);
    const QPainterPath lower = rectanglePath(tray(trayTop(playField().bottom())));
    canvas.shade(rectanglePath(playField()), [&](double x, double y) { return field.at(x, y); });
    canvas.shade(lower, [&](double x, double y) { return sunk.at(x, y); });
    sink(canvas, lower, 7, 0.7);
    paintLight(canvas, 0.42);
    paintLines(canvas, brass());
    paintWorks(canvas, {brass(), ivory(), {rgb(0xd2583c), rgb(0x9c2f1f), 0.8}, rgb(0x22130b)});
    return canvas;
}

Canvas feltTable()
{
    Canvas canvas =
        coveredTable(rimWood(rgb(0x9a5c36), rgb(0x4a2612), 41), Felt(rgb(0x1f6b45), 43));
    const QRectF sewn = playField().adjusted(2, 2, -2, -2);
    const double top = trayTop(sewn.bottom());
    QPainterPath seam = rectanglePath(sewn);
    seam.moveTo(sewn.left(), top);
    seam.lineTo(sewn.right(), top);
    sew(canvas, seam, rgb(0xc9b98a));
    paintWorks(canvas, {brass(), ivory(), {rgb(0xe0604a), rgb(0xa83526), 0.8}, rgb(0x0b2a1b)});
    return canvas;
}

Canvas nightTable()
{
    Canvas canvas =
        coveredTable(rimWood(rgb(0x7d563b), rgb(0x3a2315), 53), Leather(rgb(0x23365f), 59));
    const InlayMaterial wornFoil{rgb(0xa9b3c4), rgb(0x6f7a8e), 0.6};
    // Lozenges would be too close to the cards, so the tray has a plain line.
    const double line = 0.8;
    const QRectF tooled = playField().adjusted(1, 1, -1, -1);
    const double top = trayTop(tooled.bottom() - line);
    const QRectF plain(QPointF(tooled.left(), top - line), tooled.bottomRight());
    tool(canvas, {tooled.topLeft(), QPointF(tooled.right(), top)}, wornFoil);
    inlay(canvas,
          between(rectanglePath(plain), rectanglePath(plain.adjusted(line, line, -line, -line))),
          wornFoil);
    paintWorks(canvas, {silver(), brass(), {rgb(0xd8685a), rgb(0xa03a34), 0.8}, rgb(0x0d1526)});
    return canvas;
}

} // namespace quillet::artwork
