#include "engine/pay_table.h"

#include <algorithm>
#include <array>

namespace quillet
{

namespace
{

constexpr std::array<Payout, 9> payouts{{
    {1, 4000, 25, Cue::bigWin, 500},
    {2, 250, 25, Cue::bigWin, 500},
    {3, 125, 25, Cue::bigWin, 500},
    {4, 45, 25, Cue::bigWin, 500},
    {6, 30, 15, Cue::bigWin, 500},
    {7, 20, 10, Cue::mediumWin, 500},
    {8, 15, 15, Cue::smallWin, 500},
    {10, 10, 10, Cue::smallWin, 500},
    {11, 5, 5, Cue::smallWin, 200},
}};

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
