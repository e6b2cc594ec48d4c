#pragma once

#include <array>
#include <vector>

namespace quillet
{

inline constexpr double rankMarkHeight = 22;

struct PenStroke {
    double width;
    const char* path; // see path_text.h
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
