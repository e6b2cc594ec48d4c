#include "assets/make/pictures/icon.h"

#include "assets/make/pictures/inlay.h"
#include "assets/make/pictures/quill.h"
#include "assets/make/pictures/suits.h"

#include <QTransform>

namespace quillet
{

namespace
{

const Color ink = rgb(0x2a1710);
const Color paper = rgb(0xfffdf7);
const Color wine = rgb(0x8e2331);
const Color gold = rgb(0xe3ab43);
const Color paleGold = rgb(0xf7dc97);
const Color suitRed = rgb(0xc8102e);

QPainterPath grown(const QPainterPath& shape, double by)
{
    return shape.united(stroked(shape, 2 * by, Qt::RoundCap, Qt::RoundJoin));
}

void addCard(FlatDrawing& drawing, const QRectF& card, double radius, double turn, double outline,
             const Color& face)
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

FlatDrawing fullDrawing()
{
    FlatDrawing drawing{64, {}};
    addCard(drawing, {7, 9, 33, 46}, 4, -13, 1.5, paper);
    const QTransform turned = QTransform::fromTranslate(23.5, 32).rotate(-13).translate(-23.5, -32);
    drawing.shapes.push_back({turned.map(roundedPath({11, 13, 25, 38}, 2)), wine});
    addCard(drawing, {20, 9, 35, 49}, 4.2, 7, 1.5, paper);
    const QTransform leaning =
        QTransform::fromTranslate(37.5, 33.5).rotate(7).translate(-37.5, -33.5);
    drawing.shapes.push_back({leaning.map(suitMark(Suit::heart, {34, 25}, 21)), suitRed});
    addQuill(drawing, quill({13, 60}, {62, 7}, 1.25), 1.2, true);
    return drawing;
}

FlatDrawing middleDrawing()
{
    FlatDrawing drawing{32, {}};
    addCard(drawing, {3, 3, 18, 25}, 2.5, -10, 1.2, wine);
    addCard(drawing, {9, 3, 19, 26}, 2.5, 4, 1.2, paper);
    drawing.shapes.push_back({suitMark(Suit::heart, {16.5, 11.5}, 11), suitRed});
    addQuill(drawing, quill({6, 31}, {31, 7}, 1.7), 1, false);
    return drawing;
}

FlatDrawing smallDrawing()
{
    FlatDrawing drawing{16, {}};
    addCard(drawing, {1, 0, 13, 16}, 2, 0, 1, paper);
    drawing.shapes.push_back({suitMark(Suit::heart, {6, 5.5}, 6), suitRed});
    addQuill(drawing, quill({3, 15.4}, {15.6, 4}, 2), 0.8, false);
    return drawing;
}

QByteArray number(double value)
{
    return QByteArray::number(value, 'f', 3);
}

QByteArray point(const QPainterPath::Element& element)
{
    return number(element.x) + ' ' + number(element.y);
}

QByteArray outline(const QPainterPath& path)
{
    QByteArray code;
    for (int i = 0; i < path.elementCount(); ++i) {
        const QPainterPath::Element element = path.elementAt(i);
        switch (element.type) {
        case QPainterPath::MoveToElement:
            code += 'M' + point(element);
            break;
        case QPainterPath::LineToElement:
            code += 'L' + point(element);
            break;
        case QPainterPath::CurveToElement:
            code += 'C' + point(element);
            break;
        case QPainterPath::CurveToDataElement:
            code += ' ' + point(element);
            break;
        }
    }
    return code + 'Z';
}

} // namespace

FlatDrawing iconDrawing(int size)
{
    if (size < 24)
        return smallDrawing();
    return size < 48 ? middleDrawing() : fullDrawing();
}

Canvas icon(int size)
{
    const FlatDrawing drawing = iconDrawing(size);
    const int side = static_cast<int>(drawing.side);
    Canvas canvas(QSize(side, side), size / drawing.side);
    for (const FlatShape& shape : drawing.shapes)
        canvas.fill(shape.path, shape.color);
    return canvas;
}

QByteArray toSvg(const FlatDrawing& drawing)
{
    const QByteArray side = QByteArray::number(drawing.side);
    QByteArray svg = "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"" + side + "\" height=\"" +
                     side + "\" viewBox=\"0 0 " + side + ' ' + side + "\">\n";
    for (const FlatShape& shape : drawing.shapes) {
        const QColor color = QColor::fromRgbF(shape.color.r, shape.color.g, shape.color.b);
        const bool winding = shape.path.fillRule() == Qt::WindingFill;
        svg += "<path fill=\"" + color.name().toLatin1() + "\" fill-rule=\"" +
               (winding ? "nonzero" : "evenodd") + "\" d=\"" + outline(shape.path) + "\"/>\n";
    }
    return svg + "</svg>\n";
}

} // namespace quillet
