#include "assets/make/pictures/alphabet.h"

#include "assets/make/pictures/canvas.h"
#include "shapes/letters.h"

#include <QTransform>

#include <array>
#include <cmath>
#include <sstream>
#include <stdexcept>

namespace quillet
{

namespace
{

template <std::size_t count>
std::array<double, count> numbers(std::istringstream& code)
{
    std::array<double, count> values{};
    for (double& value : values)
        code >> value;
    return values;
}

// Joins the strokes of one letter. Every part turns clockwise, as Qt's stroker does; if one turned
// the other way, its overlaps with the rest would be holes.
class Pen
{
public:
    explicit Pen(double weight) : m_weight(weight) { m_outline.setFillRule(Qt::WindingFill); }

    QPainterPath write(const char* code);

private:
    [[nodiscard]] QPointF inside(double x, double y) const
    {
        return {x + m_weight / 2, m_weight / 2 + y * (1 - m_weight)};
    }
    void addArc(std::istringstream& code);
    void addEllipse(std::istringstream& code);
    void addSlant(std::istringstream& code);
    void finishStroke();

    double m_weight;
    QPainterPath m_stroke;
    QPainterPath m_outline;
};

QPainterPath Pen::write(const char* code)
{
    std::istringstream input(code);
    char command = 0;
    while (input >> command) {
        if (command == 'M') {
            finishStroke();
            const auto [x, y] = numbers<2>(input);
            m_stroke.moveTo(inside(x, y));
        } else if (command == 'L') {
            const auto [x, y] = numbers<2>(input);
            m_stroke.lineTo(inside(x, y));
        } else if (command == 'C') {
            const auto [x1, y1, x2, y2, x, y] = numbers<6>(input);
            m_stroke.cubicTo(inside(x1, y1), inside(x2, y2), inside(x, y));
        } else if (command == 'A') {
            addArc(input);
        } else if (command == 'O') {
            addEllipse(input);
        } else if (command == 'D') {
            addSlant(input);
        }
    }
    finishStroke();
    return m_outline;
}

void Pen::addArc(std::istringstream& code)
{
    const auto [cx, cy, rx, ry, from, sweep] = numbers<6>(code);
    const QRectF box(inside(cx - rx, cy - ry), inside(cx + rx, cy + ry));
    if (m_stroke.elementCount() == 0)
        m_stroke.arcMoveTo(box, from);
    m_stroke.arcTo(box, from, sweep);
}

void Pen::addEllipse(std::istringstream& code)
{
    const auto [cx, cy, rx, ry] = numbers<4>(code);
    finishStroke();
    m_stroke.addEllipse(QRectF(inside(cx - rx, cy - ry), inside(cx + rx, cy + ry)));
    finishStroke();
}

void Pen::addSlant(std::istringstream& code)
{
    const auto [x1, y1, x2, y2] = numbers<4>(code);
    finishStroke();
    const double half = m_weight / 2 * std::hypot(x2 - x1, y2 - y1) / std::abs(y2 - y1);
    const double left1 = x1 + m_weight / 2 - half;
    const double left2 = x2 + m_weight / 2 - half;
    m_outline.addPolygon(
        QPolygonF{{left1, y1}, {left1 + 2 * half, y1}, {left2 + 2 * half, y2}, {left2, y2}});
    m_outline.closeSubpath();
}

void Pen::finishStroke()
{
    if (m_stroke.elementCount() > 1) {
        // Stroked at a hundred times the size, because Qt flattens tiny curves to polygons.
        const QPainterPath large =
            stroked(QTransform::fromScale(100, 100).map(m_stroke), 100 * m_weight);
        m_outline.addPath(QTransform::fromScale(0.01, 0.01).map(large));
    }
    m_stroke = QPainterPath();
}

struct Glyph {
    QPainterPath outline;
    double left = 0; // white to leave before the outline's origin
    double advance = 0;
};

// Letters look evenly spaced when the white between them is equal in area, not in distance: an
// open side such as the L's lends its white to the gap, to a limited depth.
double openness(const Mask& mask, bool leftSide)
{
    const QRect area = mask.bounds();
    constexpr double deepest = 0.30;
    double white = 0;
    for (int y = area.top() + 1; y < area.bottom(); ++y) {
        int x = 0;
        while (x < area.width() && mask.at(leftSide ? area.left() + x : area.right() - x, y) < 0.5F)
            ++x;
        white += std::min((x - 1) / 100.0, deepest);
    }
    return white / (area.height() - 2);
}

Glyph cut(char letter, const Lettering& lettering)
{
    Glyph glyph;
    glyph.outline = Pen(lettering.weight).write(letterStrokes().at(letter));
    const Canvas ruler(QSize(3, 3), 100);
    const QPainterPath moved = glyph.outline.translated(1, 1);
    const Mask mask = ruler.mask(moved);
    const double white = 0.25 + lettering.tracking;
    const double shape = 0.72;
    const QRectF box = glyph.outline.boundingRect();
    if (letter >= '0' && letter <= '9') {
        // Figures stand in columns.
        glyph.advance = 0.62 + lettering.weight + lettering.tracking / 2;
        glyph.left = (glyph.advance - box.width()) / 2 - box.left();
        return glyph;
    }
    glyph.left = white / 2 - shape * openness(mask, true) - box.left();
    glyph.advance = glyph.left + box.right() + white / 2 - shape * openness(mask, false);
    return glyph;
}

} // namespace

QPainterPath letteringPath(std::string_view text, const Lettering& lettering)
{
    QPainterPath line;
    line.setFillRule(Qt::WindingFill);
    double x = 0;
    for (const char letter : text) {
        if (letter == ' ') {
            x += 0.42 + lettering.tracking;
            continue;
        }
        const Glyph glyph = cut(letter, lettering);
        line.addPath(glyph.outline.translated(x + glyph.left, -1));
        x += glyph.advance;
    }
    return QTransform::fromScale(lettering.capHeight, lettering.capHeight).map(line);
}

QPainterPath centredLettering(std::string_view text, const Lettering& lettering,
                              QPointF middleOfBaseline)
{
    const QPainterPath line = letteringPath(text, lettering);
    const QRectF box = line.boundingRect();
    return line.translated(middleOfBaseline.x() - box.center().x(), middleOfBaseline.y());
}

} // namespace quillet
