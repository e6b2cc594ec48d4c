#include "assets/make/pictures/alphabet.h"

#include "assets/make/pictures/canvas.h"

#include <QTransform>

#include <array>
#include <cmath>
#include <map>
#include <sstream>
#include <stdexcept>

namespace quillet
{

namespace
{

// A letter is a few pen strokes in a box one unit high, y downwards.
//   M x y  pen down          L x y  line            C x1 y1 x2 y2 x y  curve
//   A cx cy rx ry from sweep  arc of an ellipse, in degrees, counter-clockwise
//   O cx cy rx ry             whole ellipse
//   D x1 y1 x2 y2             slanted stroke downwards, its ends cut level
const std::map<char, const char*>& strokes()
{
    static const std::map<char, const char*> table{
        {'A', "D .39 0 0 1 D .39 0 .78 1 M .16 .68 L .62 .68"},
        {'B', "M 0 0 L 0 1 M 0 0 L .24 0 A .24 .235 .22 .235 90 -180 L 0 .47 "
              "M 0 .47 L .27 .47 A .27 .735 .25 .265 90 -180 L 0 1"},
        {'C', "A .44 .5 .44 .5 46 268"},
        {'D', "M 0 0 L 0 1 M 0 0 L .22 0 A .22 .5 .48 .5 90 -180 L 0 1"},
        {'E', "M .48 0 L 0 0 L 0 1 L .48 1 M 0 .48 L .42 .48"},
        {'F', "M .47 0 L 0 0 L 0 1 M 0 .5 L .40 .5"},
        {'G', "A .44 .5 .44 .5 46 272 L .77 .56 L .48 .56"},
        {'H', "M 0 0 L 0 1 M .66 0 L .66 1 M 0 .48 L .66 .48"},
        {'I', "M 0 0 L 0 1"},
        {'J', "M .36 0 L .36 .70 A .14 .70 .22 .30 0 -125"},
        {'K', "M 0 0 L 0 1 D .56 0 .02 .63 D .20 .42 .62 1"},
        {'L', "M 0 0 L 0 1 L .45 1"},
        {'N', "M 0 0 L 0 1 M .68 0 L .68 1 D .01 0 .67 1"},
        {'O', "O .45 .5 .45 .5"},
        {'P', "M 0 0 L 0 1 M 0 0 L .25 0 A .25 .275 .26 .275 90 -180 L 0 .55"},
        {'Q', "O .45 .5 .45 .5 D .50 .66 .86 1.07"},
        {'R', "M 0 0 L 0 1 M 0 0 L .25 0 A .25 .265 .26 .265 90 -180 L 0 .53 D .24 .53 .57 1"},
        {'S', "M .48 .15 C .42 .05 .35 0 .26 0 C .11 0 .03 .10 .03 .23 C .03 .39 .15 .44 .27 .49 "
              "C .41 .55 .52 .61 .52 .76 C .52 .91 .41 1 .26 1 C .14 1 .05 .94 0 .83"},
        {'T', "M 0 0 L .64 0 M .32 0 L .32 1"},
        {'U', "M 0 0 L 0 .66 A .32 .66 .32 .34 180 180 L .64 0"},
        {'V', "D 0 0 .38 1 D .76 0 .38 1"},
        {'Y', "D 0 0 .34 .56 D .68 0 .34 .56 M .34 .5 L .34 1"},
        {'0', "O .27 .5 .27 .5"},
        {'1', "M .30 0 L .30 1 M .08 .21 C .18 .18 .27 .11 .30 0"},
        {'2', "M .03 .24 C .05 .08 .15 0 .27 0 C .41 0 .50 .09 .50 .24 "
              "C .50 .41 .38 .51 .26 .64 C .14 .76 .04 .87 .01 1 L .53 1"},
        {'3', "M .03 .15 C .08 .05 .16 0 .26 0 C .40 0 .48 .09 .48 .22 C .48 .37 .37 .46 .21 .46 "
              "M .21 .46 C .41 .46 .52 .57 .52 .73 C .52 .90 .40 1 .25 1 C .12 1 .04 .94 0 .82"},
        {'4', "M .40 0 L .40 1 M 0 .70 L .56 .70 D .385 0 0 .74"},
        {'5', "M .47 0 L .10 0 L .06 .45 C .12 .39 .19 .36 .26 .36 C .42 .36 .52 .49 .52 .67 "
              "C .52 .88 .40 1 .24 1 C .12 1 .04 .95 0 .84"},
    };
    return table;
}

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
    glyph.outline = Pen(lettering.weight).write(strokes().at(letter));
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
