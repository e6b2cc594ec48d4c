#include "assets/make/pictures/icon.h"

#include "assets/make/pictures/inlay.h"
#include "assets/make/pictures/quill.h"
#include "assets/make/pictures/suits.h"

#include <QTransform>

namespace quillet::artwork
{

namespace
{

const Colour ink = rgb(0x2a1710);
const Colour paper = rgb(0xfffdf7);
const Colour wine = rgb(0x8e2331);
const Colour gold = rgb(0xe3ab43);
const Colour paleGold = rgb(0xf7dc97);
const Colour suitRed = rgb(0xc8102e);
const Colour pine = rgb(0x1c5a40);
const Colour green = rgb(0x23895b);

QPainterPath grown(const QPainterPath& shape, double by)
{
    return shape.united(stroked(shape, 2 * by, Qt::RoundCap, Qt::RoundJoin));
}

void addCard(FlatDrawing& drawing, const QRectF& card, double radius, double turn, double outline,
             const Colour& face)
{
    const QPointF middle = card.center();
    const QTransform turned = QTransform::fromTranslate(middle.x(), middle.y())
                                  .rotate(turn)
                                  .translate(-middle.x(), -middle.y());
    drawing.shapes.push_back({turned.map(roundedPath(card, radius)), ink});
    const QRectF inner = card.adjusted(outline, outline, -outline, -outline);
    drawing.shapes.push_back({turned.map(roundedPath(inner, radius - outline / 2)), face});
}

void addQuill(FlatDrawing& drawing, const Quill& feather, double outline, bool fine)
{
    const QPainterPath whole = feather.vane.united(feather.shaft).united(feather.nib);
    drawing.shapes.push_back({grown(whole, outline), ink});
    drawing.shapes.push_back({feather.vane, gold});
    if (fine)
        drawing.shapes.push_back({feather.barbs, rgb(0x9a6a1e)});
    drawing.shapes.push_back({feather.shaft, fine ? paleGold : rgb(0x7d5212)});
    drawing.shapes.push_back({feather.nib, paleGold});
}

Colour clothOf(Program program)
{
    return program == Program::trainer ? wine : pine;
}

// A heart, or a tick that is as high.
FlatShape mark(Program program, QPointF middle, double height)
{
    if (program == Program::trainer)
        return {suitMark(hearts, middle, height), suitRed};
    QPainterPath tick(middle + QPointF(-0.46, 0.02) * height);
    tick.lineTo(middle + QPointF(-0.1, 0.38) * height);
    tick.lineTo(middle + QPointF(0.5, -0.42) * height);
    return {stroked(tick, 0.27 * height, Qt::FlatCap, Qt::MiterJoin), green};
}

FlatDrawing fullDrawing(Program program)
{
    FlatDrawing drawing{64, {}};
    // The quill points as on the table.
    addCard(drawing, {27, 12, 30, 40}, 4, 13, 1.5, paper);
    const QTransform turned = QTransform::fromTranslate(42, 32).rotate(13).translate(-42, -32);
    drawing.shapes.push_back({turned.map(roundedPath({31, 16, 22, 32}, 2)), clothOf(program)});
    addCard(drawing, {9, 9, 35, 49}, 4.2, -7, 1.5, paper);
    const QTransform leaning =
        QTransform::fromTranslate(26.5, 33.5).rotate(-7).translate(-26.5, -33.5);
    const auto [outline, colour] = mark(program, {27, 23}, 20);
    drawing.shapes.push_back({leaning.map(outline), colour});
    addQuill(drawing, quill({55, 61.5}, {2.2, 25}, 1.15), 1.2, true);
    return drawing;
}

// In small icons edges are on whole pixels, and the cards are upright for lack of room.
struct SmallIcon {
    int size;
    QRectF back;
    QRectF front;
    double radius;
    QPointF heart;
    double heartHeight;
    QPointF point;
    QPointF tip;
};

const std::array smallIcons{
    SmallIcon{16, {}, {2, 0, 13, 16}, 2, {9.5, 5.5}, 7, {13.4, 15.6}, {0.4, 5.6}},
    SmallIcon{22, {7, 0, 14, 19}, {2, 2, 15, 20}, 2.4, {10, 8.5}, 8.5, {18, 21.6}, {0.4, 8.5}},
    SmallIcon{24, {7, 0, 16, 21}, {2, 2, 17, 22}, 2.4, {11, 9}, 9.5, {20, 23.6}, {0.4, 9.5}},
    SmallIcon{32, {10, 1, 20, 27}, {3, 3, 21, 28}, 3, {14.5, 12}, 12.5, {27, 31.4}, {0.5, 12.5}},
};

FlatDrawing smallDrawing(const SmallIcon& small, Program program)
{
    FlatDrawing drawing{static_cast<double>(small.size), {}};
    if (!small.back.isEmpty())
        addCard(drawing, small.back, small.radius, 0, 1, clothOf(program));
    addCard(drawing, small.front, small.radius, 0, 1, paper);
    drawing.shapes.push_back(mark(program, small.heart, small.heartHeight));
    addQuill(drawing, quill(small.point, small.tip, 1.7), 0.8, false);
    return drawing;
}

} // namespace

FlatDrawing iconDrawing(int size, Program program)
{
    for (const SmallIcon& small : smallIcons)
        if (small.size == size)
            return smallDrawing(small, program);
    return fullDrawing(program);
}

} // namespace quillet::artwork
