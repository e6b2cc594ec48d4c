#include "practice/standard.h"

namespace quillet::practice
{

namespace
{

std::uint32_t perfectHolds(const odds::DealtHand& hand)
{
    std::uint32_t perfect = 0;
    for (odds::Hold hold = 0; hold < odds::holds; ++hold)
        perfect |= hand.worth[hold] == hand.worth[hand.bestHold] ? 1U << hold : 0;
    return perfect;
}

} // namespace

Standard::Standard(const charts::Chart& chart) : m_chart(chart), m_player(chart) {}

Judgement Standard::judge(const odds::DealtHand& hand, odds::Hold held) const
{
    const std::uint32_t allowed = m_player ? m_player->play(hand).fitting : perfectHolds(hand);
    const odds::Fraction best = hand.expectedCredits(hand.bestHold);
    const odds::Hold bestAllowed = hand.bestOf(allowed);
    return {(allowed >> held & 1U) != 0,
            allowed,
            hand.bestHold,
            bestAllowed,
            best - hand.expectedCredits(held),
            best - hand.expectedCredits(bestAllowed)};
}

std::string Standard::row(const odds::DealtHand& hand) const
{
    return m_player ? charts::rowText(m_chart[m_player->play(hand).row]) : std::string();
}

} // namespace quillet::practice
