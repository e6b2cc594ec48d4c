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
constexpr double deepest = 0.30; // white that a gap borrows

template <std::size_t Count>
std::array<double, Count> numbers(std::istringstream& code)
{
    std::array<double, Count> values{};
    for (double& value : values)
        code >> value;
    return values;
}

// A point of the letter's box on the way of a pen that stays inside.
Point inside(double x, double y)
{
    return {x + weight / 2, weight / 2 + y * (1 - weight)};
}

} // namespace

LetterOutlines::LetterOutlines(const char* code)
{
    std::istringstream input(code);
    char command = 0;
    bool penDown = false;
    while (input >> command) {
        if (command == 'M' || (command == 'A' && !penDown) || command == 'O')
            m_strokes.emplace_back();
        if (command == 'M' || command == 'L') {
            const auto [x, y] = numbers<2>(input);
            m_strokes.back().push_back(inside(x, y));
        } else if (command == 'C') {
            addCurve(input);
        } else if (command == 'A' || command == 'O') {
            addArc(input, command == 'O');
        } else if (command == 'D') {
            addSlant(input);
        }
        penDown = command != 'O' && command != 'D';
    }
}

void LetterOutlines::addArc(std::istringstream& code, bool whole)
{
    const auto [cx, cy, rx, ry] = numbers<4>(code);
    const auto [from, sweep] = whole ? std::array<double, 2>{0, 360} : numbers<2>(code);
    constexpr int steps = 32;
    for (int step = 0; step <= steps; ++step) {
        const double angle = (from + sweep * step / steps) * std::numbers::pi / 180;
        m_strokes.back().push_back(inside(cx + rx * std::cos(angle), cy - ry * std::sin(angle)));
    }
}

void LetterOutlines::addCurve(std::istringstream& code)
{
    const Point a = m_strokes.back().back();
    const auto [x1, y1, x2, y2, x3, y3] = numbers<6>(code);
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

void LetterOutlines::addSlant(std::istringstream& code)
{
    const auto [x1, y1, x2, y2] = numbers<4>(code);
    const double half = weight / 2 * std::hypot(x2 - x1, y2 - y1) / std::abs(y2 - y1);
    const double left1 = x1 + weight / 2 - half;
    const double left2 = x2 + weight / 2 - half;
    m_slants.push_back({{left1, y1}, {left1 + 2 * half, y1}, {left2 + 2 * half, y2}, {left2, y2}});
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
        white += std::min(left - leftmost(), deepest);
    return white / rows;
}

double LetterEdges::opennessOfRight() const
{
    double white = 0;
    for (const double right : m_right)
        white += std::min(rightmost() - right, deepest);
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
