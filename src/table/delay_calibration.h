#pragma once

#include <cstdint>
#include <functional>
#include <optional>

namespace quillet
{

// What a round of frames costs without any delay, and what one unit of delay adds to a frame.
struct RoundCost {
    double seconds = 0.0;
    double secondsPerUnit = 0.0; // of the whole round
};

// Runs a round of frames with this delay and returns how long it took, in seconds. Returns nothing
// if no time is left; the delay is then estimated from the rounds so far.
using MeasureRound = std::function<std::optional<double>(std::int32_t delay)>;

// The smallest multiple of ten for which a round of flight frames takes at least 0.4 s: that round
// and the one before it are measured, and as few others as possible, six at most. If a round
// throws, the delay has the value reached so far.
void calibrateFlight(std::int32_t& delay, const RoundCost& cost, const MeasureRound& measure);

// From its present value, rises by ten a round until a round takes at least 0.3 s; the last round
// adds another ten if it took less than 0.5 s.
void calibrateBanner(std::int32_t& delay, const RoundCost& cost, const MeasureRound& measure);

} // namespace quillet
