#include "assets/make/pictures/alphabet.h"

#include "assets/make/pictures/canvas.h"
#include "assets/make/pictures/letters.h"

#include <QTransform>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <span>
#include <sstream>

namespace quillet::artwork
{

namespace
{

// Joins the strokes of one letter. Every part runs clockwise, like the output of Qt's stroker. A
// part in the other direction would make holes where it overlaps the rest.
class Pen
{
public:
    explicit Pen(double weight) : m_weight(weight) { m_outline.setFillRule(Qt::WindingFill); }

    QPainterPath write(const char* strokes);

private:
    // Where the middle of the pen goes for a point of the box, so that its ink stays inside.
    [[nodiscard]] QPointF inside(double x, double y) const
    {
        return {x + m_weight / 2, m_weight / 2 + y * (1 - m_weight)};
    }
    void addSlant(double x1, double y1, double x2, double y2);
    void finishStroke();

    double m_weight;
    QPainterPath m_stroke;
    QPainterPath m_outline;
};

QPainterPath Pen::write(const char* strokes)
{
    std::istringstream text(strokes);
    for (char letter = 0; text >> letter;) {
        std::array<double, 6> numbers{};
        const auto& [x1, y1, x2, y2, x3, y3] = numbers;
        const std::size_t count = letter == 'A' || letter == 'C'   ? 6
                                  : letter == 'E' || letter == 'D' ? 4
                                                                   : 2;
        for (double& number : std::span(numbers).first(count))
            text >> number;
        const QRectF ellipse(inside(x1 - x2, y1 - y2), inside(x1 + x2, y1 + y2));
        if (letter == 'M') {
            finishStroke();
            m_stroke.moveTo(inside(x1, y1));
        } else if (letter == 'L') {
            m_stroke.lineTo(inside(x1, y1));
        } else if (letter == 'C') {
            m_stroke.cubicTo(inside(x1, y1), inside(x2, y2), inside(x3, y3));
        } else if (letter == 'A') {
            if (m_stroke.elementCount() == 0)
                m_stroke.arcMoveTo(ellipse, x3);
            m_stroke.arcTo(ellipse, x3, y3);
        } else if (letter == 'E') {
            finishStroke();
            m_stroke.addEllipse(ellipse);
            finishStroke();
        } else if (letter == 'D') {
            addSlant(x1, y1, x2, y2);
        }
    }
    finishStroke();
    return m_outline;
}

void Pen::addSlant(double x1, double y1, double x2, double y2)
{
    finishStroke();
    const double half = m_weight / 2 * std::hypot(x2 - x1, y2 - y1) / std::abs(y2 - y1);
    const double left1 = x1 + m_weight / 2 - half;
    const double left2 = x2 + m_weight / 2 - half;
    m_outline.addPolygon(QPolygonF({QPointF(left1, y1), QPointF(left1 + 2 * half, y1),
                                    QPointF(left2 + 2 * half, y2), QPointF(left2, y2)}));
    m_outline.closeSubpath();
}

void Pen::finishStroke()
{
    if (m_stroke.elementCount() > 1) {
        // Stroked at a hundred times the size, because Qt turns tiny curves into polygons.
        const QPainterPath large =
            stroked(QTransform::fromScale(100, 100).map(m_stroke), 100 * m_weight);
        m_outline.addPath(QTransform::fromScale(0.01, 0.01).map(large));
    }
    m_stroke = QPainterPath();
}

struct Glyph {
    QPainterPath outline;
    double left; // white before the outline's origin
    double advance;
};

// The mean depth of the white behind the letter's edge on one side, in heights of a letter.
double openness(const Mask& mask, bool leftSide)
{
    constexpr double deepestOpening = 0.30;
    const QRect area = mask.bounds();
    double white = 0;
    for (int y = area.top() + 1; y < area.bottom(); ++y) {
        int x = 0;
        while (x < area.width() && mask.at(leftSide ? area.left() + x : area.right() - x, y) < 0.5F)
            ++x;
        white += std::min((x - 1) / 100.0, deepestOpening);
    }
    return white / (area.height() - 2);
}

// Letters look evenly spaced if the white between them is equal in area, not in distance. So an
// open side, such as that of the L, lends some of its white to the gap.
Glyph spaced(const QPainterPath& outline, double tracking)
{
    constexpr double shareOfOpenSides = 0.72;
    const double white = 0.25 + tracking;
    const Mask mask = Canvas(QSize(3, 3), 100).mask(outline.translated(1, 1));
    const QRectF box = outline.boundingRect();
    const double left = white / 2 - shareOfOpenSides * openness(mask, true) - box.left();
    return {outline, left,
            left + box.right() + white / 2 - shareOfOpenSides * openness(mask, false)};
}

Glyph cut(char letter, const Lettering& lettering)
{
    const QPainterPath outline = Pen(lettering.weight).write(letterStrokes(letter));
    if (letter < '0' || letter > '9')
        return spaced(outline, lettering.tracking);
    // Figures form columns.
    const QRectF box = outline.boundingRect();
    const double advance = 0.62 + lettering.weight + lettering.tracking / 2;
    return {outline, (advance - box.width()) / 2 - box.left(), advance};
}

} // namespace

QPainterPath letteringPath(std::string_view text, const Lettering& lettering)
{
    constexpr double blankBetweenWords = 0.42;
    QPainterPath line;
    line.setFillRule(Qt::WindingFill);
    double x = 0;
    for (const char letter : text) {
        if (letter == ' ') {
            x += blankBetweenWords + lettering.tracking;
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

} // namespace quillet::artwork
