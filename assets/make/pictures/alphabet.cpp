#include "assets/make/pictures/alphabet.h"

#include "assets/make/pictures/canvas.h"
#include "shapes/letters.h"

#include <QTransform>

#include <algorithm>

namespace quillet::artwork
{

namespace
{

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
        const LetterPoint at = penAt(x, y, m_weight);
        return {at.x, at.y};
    }
    void addArc(const PenMove& arc);
    void addEllipse(const PenMove& ellipse);
    void addSlant(const PenMove& slant);
    void finishStroke();

    double m_weight;
    QPainterPath m_stroke;
    QPainterPath m_outline;
};

QPainterPath Pen::write(const char* code)
{
    for (const PenMove& move : penMoves(code)) {
        const auto& [x1, y1, x2, y2, x3, y3] = move.numbers;
        if (move.command == 'M') {
            finishStroke();
            m_stroke.moveTo(inside(x1, y1));
        } else if (move.command == 'L') {
            m_stroke.lineTo(inside(x1, y1));
        } else if (move.command == 'C') {
            m_stroke.cubicTo(inside(x1, y1), inside(x2, y2), inside(x3, y3));
        } else if (move.command == 'A') {
            addArc(move);
        } else if (move.command == 'O') {
            addEllipse(move);
        } else if (move.command == 'D') {
            addSlant(move);
        }
    }
    finishStroke();
    return m_outline;
}

void Pen::addArc(const PenMove& arc)
{
    const auto& [cx, cy, rx, ry, from, sweep] = arc.numbers;
    const QRectF box(inside(cx - rx, cy - ry), inside(cx + rx, cy + ry));
    if (m_stroke.elementCount() == 0)
        m_stroke.arcMoveTo(box, from);
    m_stroke.arcTo(box, from, sweep);
}

void Pen::addEllipse(const PenMove& ellipse)
{
    const auto& [cx, cy, rx, ry, unused, unusedToo] = ellipse.numbers;
    finishStroke();
    m_stroke.addEllipse(QRectF(inside(cx - rx, cy - ry), inside(cx + rx, cy + ry)));
    finishStroke();
}

void Pen::addSlant(const PenMove& slant)
{
    finishStroke();
    QPolygonF corners;
    for (const LetterPoint& corner : slantCorners(slant, m_weight))
        corners << QPointF(corner.x, corner.y);
    m_outline.addPolygon(corners);
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
    double white = 0;
    for (int y = area.top() + 1; y < area.bottom(); ++y) {
        int x = 0;
        while (x < area.width() && mask.at(leftSide ? area.left() + x : area.right() - x, y) < 0.5F)
            ++x;
        white += std::min((x - 1) / 100.0, deepestOpening);
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
    const double white = whiteBetweenLetters + lettering.tracking;
    const QRectF box = glyph.outline.boundingRect();
    if (letter >= '0' && letter <= '9') {
        // Figures stand in columns.
        glyph.advance = 0.62 + lettering.weight + lettering.tracking / 2;
        glyph.left = (glyph.advance - box.width()) / 2 - box.left();
        return glyph;
    }
    glyph.left = white / 2 - shareOfOpenSides * openness(mask, true) - box.left();
    glyph.advance = glyph.left + box.right() + white / 2 - shareOfOpenSides * openness(mask, false);
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
