#include "cards/picture_text.h"

#include "shapes/path_text.h"

#include <QTransform>

#include <cassert>

namespace quillet
{
namespace
{

void addCommand(const PathCommand& command, QPainterPath& path)
{
    const auto& [x1, y1, x2, y2, x3, y3] = command.numbers;
    switch (command.letter) {
    case 'M':
        return path.moveTo(x1, y1);
    case 'L':
        return path.lineTo(x1, y1);
    case 'Q':
        return path.quadTo(x1, y1, x2, y2);
    case 'C':
        return path.cubicTo(x1, y1, x2, y2, x3, y3);
    case 'O':
        return path.addEllipse(QPointF(x1, y1), x2, x2);
    case 'R':
        return path.addRect(x1, y1, x2, y2);
    default:
        assert(command.letter == 'Z');
        path.closeSubpath();
    }
}

QTransform reflectionIn(double axis)
{
    return {-1, 0, 0, 1, 2 * axis, 0};
}

} // namespace

QPainterPath readPath(std::string_view text)
{
    QPainterPath path;
    path.setFillRule(Qt::WindingFill);
    for (const PathCommand& command : pathCommands(text))
        addCommand(command, path);
    return path;
}

QPainterPath completedAcross(const QPainterPath& half, double axis)
{
    QPainterPath whole = half;
    whole.connectPath(reflectionIn(axis).map(half.toReversed()));
    whole.closeSubpath();
    return whole;
}

} // namespace quillet
