#include "cards/picture_text.h"

#include "shapes/path_text.h"

#include <QBrush>
#include <QPen>
#include <QTransform>

#include <cassert>
#include <cstddef>

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

void paintShape(QPainter& painter, std::string_view shape, const Palette& palette, double axis)
{
    const bool pair = shape.front() == ':';
    const bool half = shape.front() == '|';
    shape.remove_prefix(pair || half ? 1 : 0);
    const char fill = shape[0];
    const char line = shape[1];
    shape.remove_prefix(2);
    const double width = line == '-' ? 0 : takeNumber(shape);

    painter.setBrush(fill == '-' ? QBrush(Qt::NoBrush) : QBrush(QColor::fromRgba(palette[fill])));
    painter.setPen(line == '-' ? QPen(Qt::NoPen)
                               : QPen(QColor::fromRgba(palette[line]), width, Qt::SolidLine,
                                      Qt::RoundCap, Qt::RoundJoin));
    const QPainterPath path = readPath(shape);
    painter.drawPath(half ? completedAcross(path, axis) : path);
    if (pair)
        painter.drawPath(reflectionIn(axis).map(path));
}

} // namespace

Palette::Palette(std::initializer_list<std::pair<char, QRgb>> colours)
{
    for (const auto& [letter, colour] : colours)
        m_colours[static_cast<unsigned char>(letter)] = colour;
}

Palette Palette::with(std::initializer_list<std::pair<char, QRgb>> colours) const
{
    Palette changed = *this;
    for (const auto& [letter, colour] : colours)
        changed.m_colours[static_cast<unsigned char>(letter)] = colour;
    return changed;
}

QRgb Palette::operator[](char letter) const
{
    return m_colours[static_cast<unsigned char>(letter)];
}

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

void paintPicture(QPainter& painter, std::string_view text, const Palette& palette, double axis)
{
    for (auto start = text.find_first_not_of(" \n"); start != std::string_view::npos;
         start = text.find_first_not_of(" \n")) {
        text.remove_prefix(start);
        const std::size_t end = text.find(';');
        assert(end != std::string_view::npos);
        paintShape(painter, text.substr(0, end), palette, axis);
        text.remove_prefix(end + 1);
    }
}

} // namespace quillet
