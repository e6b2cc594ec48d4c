#include "shapes/letter_outlines.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace quillet
{

namespace
{

using Point = LetterOutlines::Point;

constexpr double weight = LetterOutlines::weight;

Point inside(double x, double y)
{
    return penAt(x, y, weight);
}

} // namespace

LetterOutlines::LetterOutlines(const char* code)
{
    bool penDown = false;
    for (const PenMove& move : penMoves(code)) {
        const char command = move.command;
        if (command == 'M' || (command == 'A' && !penDown) || command == 'O')
            m_strokes.emplace_back();
        if (command == 'M' || command == 'L') {
            m_strokes.back().push_back(inside(move.numbers[0], move.numbers[1]));
        } else if (command == 'C') {
            addCurve(move);
        } else if (command == 'A' || command == 'O') {
            addArc(move);
        } else if (command == 'D') {
            const auto corners = slantCorners(move, weight);
            m_slants.emplace_back(corners.begin(), corners.end());
        }
        penDown = command != 'O' && command != 'D';
    }
}

void LetterOutlines::addArc(const PenMove& arc)
{
    const auto [cx, cy, rx, ry, start, part] = arc.numbers;
    const double from = arc.command == 'O' ? 0 : start;
    const double sweep = arc.command == 'O' ? 360 : part;
    constexpr int steps = 32;
    for (int step = 0; step <= steps; ++step) {
        const double angle = (from + sweep * step / steps) * std::numbers::pi / 180;
        m_strokes.back().push_back(inside(cx + rx * std::cos(angle), cy - ry * std::sin(angle)));
    }
}

void LetterOutlines::addCurve(const PenMove& curve)
{
    const Point a = m_strokes.back().back();
    const auto [x1, y1, x2, y2, x3, y3] = curve.numbers;
    const Point b = inside(x1, y1);
    const Point c = inside(x2, y2);
    const Point d = inside(x3, y3);
    constexpr int steps = 16;
    for (int step = 1; step <= steps; ++step) {
        const double t = static_cast<double>(step) / steps;
        const double u = 1 - t;
        const auto between = [&](double Point::*along) {
            return u * u * u * a.*along + 3 * u * u * t * b.*along + 3 * u * t * t * c.*along +
                   t * t * t * d.*along;
        };
        m_strokes.back().push_back({between(&Point::x), between(&Point::y)});
    }
}

LetterEdges::LetterEdges(const LetterOutlines& outlines)
{
    constexpr double far = 9;
    m_left.fill(far);
    m_right.fill(-far);
    for (const auto& stroke : outlines.strokes()) {
        for (std::size_t i = 0; i + 1 < stroke.size(); ++i)
            add(stroke[i], stroke[i + 1], weight / 2);
    }
    for (const auto& slant : outlines.slants()) {
        add(slant[0], slant[3], 0);
        add(slant[1], slant[2], 0);
    }
}

double LetterEdges::leftmost() const
{
    return std::ranges::min(m_left);
}

double LetterEdges::rightmost() const
{
    return std::ranges::max(m_right);
}

double LetterEdges::opennessOfLeft() const
{
    double white = 0;
    for (const double left : m_left)
        white += std::min(left - leftmost(), deepestOpening);
    return white / rows;
}

double LetterEdges::opennessOfRight() const
{
    double white = 0;
    for (const double right : m_right)
        white += std::min(rightmost() - right, deepestOpening);
    return white / rows;
}

// A pen of that radius from point to point.
void LetterEdges::add(const Point& from, const Point& to, double radius)
{
    constexpr int steps = 40;
    for (int step = 0; step <= steps; ++step) {
        const double x = from.x + (to.x - from.x) * step / steps;
        const double y = from.y + (to.y - from.y) * step / steps;
        for (std::size_t row = 0; row < rows; ++row) {
            const double off = (static_cast<double>(row) + 0.5) / rows - y;
            if (std::abs(off) > std::max(radius, 0.5 / rows))
                continue;
            const double reach = std::sqrt(std::max(0.0, radius * radius - off * off));
            m_left[row] = std::min(m_left[row], x - reach);
            m_right[row] = std::max(m_right[row], x + reach);
        }
    }
}

} // namespace quillet
