#pragma once

#include <algorithm>
#include <array>
#include <cstdint>

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
inline constexpr std::array<Payout, 9> payTable{
    {{1, 4000}, {2, 250}, {3, 125}, {4, 45}, {6, 30}, {7, 20}, {8, 15}, {10, 10}, {11, 5}}};

// Null for a hand that pays nothing.
[[nodiscard]] constexpr const Payout* payoutFor(std::int16_t playCode)
{
    const auto found = std::ranges::find(payTable, playCode, &Payout::playCode);
    return found == payTable.end() ? nullptr : &*found;
}

} // namespace quillet
