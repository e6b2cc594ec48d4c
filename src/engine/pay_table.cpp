#include "engine/pay_table.h"

#include <algorithm>
#include <array>

namespace quillet
{

namespace
{

constexpr std::string_view cue1 = "\\wavs\\pokerwin1.wav";
constexpr std::string_view cue2 = "\\wavs\\pokerwin2.wav";
constexpr std::string_view cue3 = "\\wavs\\pokerwin3.wav";

constexpr std::array<Payout, 9> payouts{{
    {1, 4000, 25, cue3, 500},
    {2, 250, 25, cue3, 500},
    {3, 125, 25, cue3, 500},
    {4, 45, 25, cue3, 500},
    {6, 30, 15, cue3, 500},
    {7, 20, 10, cue2, 500},
    {8, 15, 15, cue1, 500},
    {10, 10, 10, cue1, 500},
    {11, 5, 5, cue1, 200},
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
