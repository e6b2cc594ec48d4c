#pragma once

#include <array>
#include <vector>

namespace quillet
{

// Outlines are texts of absolute commands: M x y, L x y, Q (4 numbers), C (6), Z, and two of our
// own, O x y r for a circle and R x y w h for a rectangle.

inline constexpr double rankMarkHeight = 22;

struct PenStroke {
    double width;
    const char* path;
};

// A rank for the corner of a card, rankMarkHeight high, as filled pieces and pen strokes. The
// guides are the edges of its stems and bars, ascending.
struct RankMark {
    double width;
    const char* pieces;
    std::vector<PenStroke> strokes;
    std::vector<double> guidesX;
    std::vector<double> guidesY;
    bool turned = false; // by 180 degrees: the nine is the six
};

// Ace to king.
[[nodiscard]] const std::array<RankMark, 13>& rankMarks();

} // namespace quillet
