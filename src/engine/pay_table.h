#pragma once

#include <cstdint>
#include <span>

namespace quillet
{

// Credits that one hand costs.
inline constexpr std::int16_t wager = 5;

// The pay of a final hand.
struct Payout {
    std::int16_t playCode;
    std::int16_t pays; // credits
};

// The paying hands, best first.
[[nodiscard]] std::span<const Payout> payTable();

// Null for a hand that pays nothing.
[[nodiscard]] const Payout* payoutFor(std::int16_t playCode);

} // namespace quillet
