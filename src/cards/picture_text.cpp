#include "cards/picture_text.h"

#include <QPen>
#include <QTransform>

#include <cassert>
#include <charconv>
#include <cstddef>

namespace quillet
{
namespace
{

class Reader
{
public:
    explicit Reader(std::string_view text) : m_text(text) {}

    bool atEnd()
    {
        while (!m_text.empty() && (m_text.front() == ' ' || m_text.front() == '\n'))
            m_text.remove_prefix(1);
        return m_text.empty();
    }

    char letter()
    {
        [[maybe_unused]] const bool nothingLeft = atEnd();
        assert(!nothingLeft);
        const char c = m_text.front();
        m_text.remove_prefix(1);
        return c;
    }

    bool skip(char c)
    {
        if (atEnd() || m_text.front() != c)
            return false;
        m_text.remove_prefix(1);
        return true;
    }

    double number()
    {
        [[maybe_unused]] const bool nothingLeft = atEnd();
        double value = 0;
        const auto result = std::from_chars(m_text.data(), m_text.data() + m_text.size(), value);
        assert(result.ec == std::errc());
        m_text.remove_prefix(static_cast<std::size_t>(result.ptr - m_text.data()));
        return value;
    }

    QPointF point()
    {
        const double x = number();
        return {x, number()};
    }

    std::string_view until(char c)
    {
        const auto found = m_text.find(c);
        assert(found != std::string_view::npos);
        const auto part = m_text.substr(0, found);
        m_text.remove_prefix(found + 1);
        return part;
    }

private:
    std::string_view m_text;
};

void readSegment(Reader& reader, QPainterPath& path)
{
    const char command = reader.letter();
    if (command == 'Z') {
        path.closeSubpath();
        return;
    }
    const QPointF first = reader.point();
    if (command == 'M') {
        path.moveTo(first);
    } else if (command == 'L') {
        path.lineTo(first);
    } else if (command == 'Q') {
        path.quadTo(first, reader.point());
    } else if (command == 'C') {
        const QPointF second = reader.point();
        path.cubicTo(first, second, reader.point());
    } else if (command == 'O') {
        const double radius = reader.number();
        path.addEllipse(first, radius, radius);
    } else {
        assert(command == 'R');
        const QPointF size = reader.point();
        path.addRect(first.x(), first.y(), size.x(), size.y());
    }
}

QTransform reflectionIn(double axis)
{
    return {-1, 0, 0, 1, 2 * axis, 0};
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
    Reader reader(text);
    while (!reader.atEnd())
        readSegment(reader, path);
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
    Reader reader(text);
    while (!reader.atEnd()) {
        const bool pair = reader.skip(':');
        const bool half = !pair && reader.skip('|');
        const char fill = reader.letter();
        const char line = reader.letter();
        const double width = line == '-' ? 0 : reader.number();

        painter.setBrush(fill == '-' ? QBrush(Qt::NoBrush)
                                     : QBrush(QColor::fromRgba(palette[fill])));
        painter.setPen(line == '-' ? QPen(Qt::NoPen)
                                   : QPen(QColor::fromRgba(palette[line]), width, Qt::SolidLine,
                                          Qt::RoundCap, Qt::RoundJoin));
        QPainterPath path = readPath(reader.until(';'));
        if (half)
            path = completedAcross(path, axis);
        painter.drawPath(path);
        if (pair)
            painter.drawPath(reflectionIn(axis).map(path));
    }
}

} // namespace quillet
