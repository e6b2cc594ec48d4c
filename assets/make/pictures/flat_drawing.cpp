#include "assets/make/pictures/flat_drawing.h"

namespace quillet::artwork
{

namespace
{

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

Canvas toPixels(const FlatDrawing& drawing, int size)
{
    const int side = static_cast<int>(drawing.side);
    Canvas canvas(QSize(side, side), size / drawing.side);
    for (const FlatShape& shape : drawing.shapes)
        canvas.fill(shape.path, shape.colour);
    return canvas;
}

QByteArray toSvg(const FlatDrawing& drawing)
{
    QByteArray svg = R"(<svg xmlns="http://www.w3.org/2000/svg" width="SIDE" height="SIDE")"
                     R"( viewBox="0 0 SIDE SIDE">)"
                     "\n";
    svg.replace("SIDE", QByteArray::number(drawing.side));
    for (const FlatShape& shape : drawing.shapes) {
        const QColor colour = QColor::fromRgbF(shape.colour.r, shape.colour.g, shape.colour.b);
        const bool winding = shape.path.fillRule() == Qt::WindingFill;
        svg += R"(<path fill=")" + colour.name().toLatin1() + R"(" fill-rule=")" +
               (winding ? "nonzero" : "evenodd") + R"(" d=")" + outline(shape.path) + "\"/>\n";
    }
    return svg + "</svg>\n";
}

} // namespace quillet::artwork
