#include "engine/pay_table.h"

#include <algorithm>
#include <array>

namespace quillet
{

namespace
{

constexpr std::array<Payout, 9> payouts{
    {{1, 4000}, {2, 250}, {3, 125}, {4, 45}, {6, 30}, {7, 20}, {8, 15}, {10, 10}, {11, 5}}};

} // namespace

std::span<const Payout> payTable()
{
    return payouts;
}

const Payout* payoutFor(std::int16_t playCode)
{
    const auto found = std::ranges::find(payouts, playCode, &Payout::playCode);
    return found == payouts.end() ? nullptr : &*found;
}

} // namespace quillet
