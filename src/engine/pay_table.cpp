#include "engine/pay_table.h"

#include "engine/cue_output.h"

#include <algorithm>
#include <array>

namespace quillet
{

namespace
{

constexpr std::array<Payout, 9> payouts{{
    {1, 4000, 25, cues::greatWin, 500},
    {2, 250, 25, cues::greatWin, 500},
    {3, 125, 25, cues::greatWin, 500},
    {4, 45, 25, cues::greatWin, 500},
    {6, 30, 15, cues::greatWin, 500},
    {7, 20, 10, cues::middleWin, 500},
    {8, 15, 15, cues::smallWin, 500},
    {10, 10, 10, cues::smallWin, 500},
    {11, 5, 5, cues::smallWin, 200},
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
