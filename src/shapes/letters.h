#pragma once

#include "shapes/path_text.h"

#include <array>
#include <span>

namespace quillet
{

// A letter as pen strokes in a box one unit high (see path_text.h), and its space in print.
struct Letter {
    char sign;
    double left;    // white before the box
    double advance; // from this letter to the next
    const char* strokes;
};
inline constexpr double printWeight = 0.15;
inline constexpr double printTracking = 0.06; // between letters
inline constexpr double blankBetweenWords = 0.42;

// Capitals, figures and punctuation, as many as are needed.
[[nodiscard]] std::span<const Letter> letters();

// Throws std::out_of_range for any other sign.
[[nodiscard]] const Letter& letterOf(char sign);

struct LetterPoint {
    double x = 0;
    double y = 0;
};

// Where the middle of a pen of this weight goes for a point of the box, so that its ink stays
// inside.
[[nodiscard]] LetterPoint penAt(double x, double y, double weight);

// The corners of a slanted stroke (D), clockwise from the upper left.
[[nodiscard]] std::array<LetterPoint, 4> slantCorners(const PathCommand& slant, double weight);

} // namespace quillet
