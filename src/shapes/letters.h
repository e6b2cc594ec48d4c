#pragma once

#include <array>
#include <map>
#include <vector>

namespace quillet
{

// A letter is a few pen strokes in a box one unit high, y downwards.
//   M x y  pen down          L x y  line            C x1 y1 x2 y2 x y  curve
//   A cx cy rx ry from sweep  arc of an ellipse, in degrees, counter-clockwise
//   O cx cy rx ry             whole ellipse
//   D x1 y1 x2 y2             slanted stroke downwards, its ends cut level
// The alphabet holds the capitals and figures that are needed.
[[nodiscard]] const std::map<char, const char*>& letterStrokes();

// One command of such a code with its numbers, as many as it takes.
struct PenMove {
    char command = 0;
    std::array<double, 6> numbers{};
};
[[nodiscard]] std::vector<PenMove> penMoves(const char* code);

struct LetterPoint {
    double x = 0;
    double y = 0;
};

// Where the middle of a pen of this weight goes for a point of the box, so that it stays inside.
[[nodiscard]] LetterPoint penAt(double x, double y, double weight);

// The corners of a slanted stroke (D), clockwise from the upper left.
[[nodiscard]] std::array<LetterPoint, 4> slantCorners(const PenMove& slant, double weight);

// How letters stand beside each other, in heights of a letter: the white between two, the share of
// it that an open side lends, to which depth it is open at most, and the blank between words.
inline constexpr double whiteBetweenLetters = 0.25;
inline constexpr double shareOfOpenSides = 0.72;
inline constexpr double deepestOpening = 0.30;
inline constexpr double blankBetweenWords = 0.42;

} // namespace quillet
