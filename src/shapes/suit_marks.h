#pragma once

#include <array>

namespace quillet
{

inline constexpr double suitMarkHeight = 18;

// A suit's mark: upright, suitMarkHeight high, centred on the origin. `half` is the left half of
// its outline, from the line x = 0 back to it. `whole` needs no reflection.
struct SuitMark {
    const char* whole;
    const char* half;
};

// Clubs, diamonds, hearts, spades.
inline constexpr std::array<SuitMark, 4> suitMarks{{
    {"O0 -4.9 4.1 O-4.6 2 4.1 O4.6 2 4.1 O0 -0.2 2.2", "M0 0 L-0.9 2 C-0.9 5.2 -1.6 8 -3.6 9 L0 9"},
    {"", "M0 -9 Q-2.9 -3.9 -6.9 0 Q-2.9 3.9 0 9"},
    {"", "M0 -5 C-0.9 -7.6 -2.6 -9 -4.5 -9 C-6.9 -9 -8.2 -7.1 -8.2 -4.8 C-8.2 -0.6 -2.6 3 0 9"},
    {"", "M0 -9 C-1.4 -5.2 -8.2 -1.8 -8.2 2.7 C-8.2 5 -6.6 6.5 -4.5 6.5"
         "C-2.9 6.3 -1.6 5.4 -0.9 3.9 C-0.8 6.3 -1.6 8.2 -3.4 9 L0 9"},
}};

} // namespace quillet
