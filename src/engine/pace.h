#pragma once

#include "engine/cue_output.h"

#include <array>
#include <cstdint>

// How a hand is shown: its pauses, in milliseconds, and its cues.
namespace quillet::pace
{

inline constexpr int fadeSteps = 25;
inline constexpr std::int32_t fadeStep = 20;
inline constexpr std::int32_t beforeFirstDeal = 1000;
inline constexpr std::int32_t beforeFlights = 600; // if cards of the last deal were showing
inline constexpr std::int32_t beforeDealtFaces = 650;
inline constexpr std::int32_t beforeDrawnFaces = 250;
inline constexpr std::int32_t beforePay = 200;
inline constexpr std::int32_t beforeNextDeal = 2500; // of automatic dealing

// For a refused hold, by the number of cards held.
inline constexpr std::array wrongCues{Cue::wrong, Cue::wrongOne, Cue::wrongTwo,
                                      Cue::wrong, Cue::wrong,    Cue::wrong};

// How a win is counted up.
struct CountUp {
    std::int16_t playCode;
    std::int16_t step;        // credits added at a time; the last step may be shorter
    Cue cue;                  // at each step
    std::int32_t pause = 500; // after each step
};

inline constexpr std::array<CountUp, 9> countUps{{{1, 25, Cue::bigWin},
                                                  {2, 25, Cue::bigWin},
                                                  {3, 25, Cue::bigWin},
                                                  {4, 25, Cue::bigWin},
                                                  {6, 15, Cue::bigWin},
                                                  {7, 10, Cue::mediumWin},
                                                  {8, 15, Cue::smallWin},
                                                  {10, 10, Cue::smallWin},
                                                  {11, 5, Cue::smallWin, 200}}};

} // namespace quillet::pace
