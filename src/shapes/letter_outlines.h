#pragma once

#include "shapes/letters.h"

#include <array>
#include <vector>

namespace quillet
{

// The strokes of a letter as points, close enough for print: the ways of a pen, and four-cornered
// slants.
class LetterOutlines
{
public:
    using Point = LetterPoint;
    using Points = std::vector<Point>;

    static constexpr double weight = 0.15; // of the pen

    // The code is that of letterStrokes.
    explicit LetterOutlines(const char* code);

    [[nodiscard]] const std::vector<Points>& strokes() const { return m_strokes; }
    [[nodiscard]] const std::vector<Points>& slants() const { return m_slants; }

private:
    void addArc(const PenMove& arc);
    void addCurve(const PenMove& curve);

    std::vector<Points> m_strokes;
    std::vector<Points> m_slants;
};

// How far the ink of a letter reaches to either side at some heights. Letters look evenly spaced
// when the white between them is equal in area, not in distance: an open side such as the L's
// lends its white to the gap, to a limited depth.
class LetterEdges
{
public:
    explicit LetterEdges(const LetterOutlines& outlines);

    [[nodiscard]] double leftmost() const;
    [[nodiscard]] double rightmost() const;

    // The white between the letter and its farthest reach, on average.
    [[nodiscard]] double opennessOfLeft() const;
    [[nodiscard]] double opennessOfRight() const;

private:
    static constexpr std::size_t rows = 40;

    void add(const LetterOutlines::Point& from, const LetterOutlines::Point& to, double radius);

    std::array<double, rows> m_left{};
    std::array<double, rows> m_right{};
};

} // namespace quillet
