#pragma once

#include "engine/cue_output.h"

#include <cstdint>
#include <span>

namespace quillet
{

// Credits that one hand costs.
inline constexpr std::int16_t wager = 5;

// What a final hand earns and how the win is counted up.
struct Payout {
    std::int16_t playCode;
    std::int16_t pays;  // credits
    std::int16_t step;  // credits added at a time; the last step may be shorter
    Cue cue;            // at each step
    std::int32_t pause; // milliseconds after each step
};

// The paying hands, best first.
[[nodiscard]] std::span<const Payout> payTable();

// Null for a hand that pays nothing.
[[nodiscard]] const Payout* payoutFor(std::int16_t playCode);

} // namespace quillet
