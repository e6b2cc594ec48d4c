#include "coach/hold_coach.h"

#include "engine/hand_evaluation.h"

#include <cstddef>

namespace quillet
{

bool isCorrectHold(const std::array<Card, 5>& hand, const std::array<bool, 5>& holdFlags,
                   std::int16_t bestPlay)
{
    std::array<Card, 5> heldCards;
    for (int slot = 0; slot < 5; ++slot)
        heldCards[static_cast<std::size_t>(slot)] = fillerCard(slot);
    std::size_t held = 0;
    for (std::size_t slot = 0; slot < hand.size(); ++slot)
        if (holdFlags[slot])
            heldCards[held++] = hand[slot];

    return std::cmp_equal(held, CardsToHand(bestPlay)) &&
           EvaluatePokerHand(heldCards, false) == bestPlay;
}

void HoldCoach::showBestPlay(std::int16_t playCode)
{
    if (m_alwaysShows())
        m_chart.highlightBestPlay(playCode);
}

bool HoldCoach::acceptHold(const HandState& state)
{
    m_chart.resetChartColors();
    if (!state.judgePending || isCorrectHold(state.hand, state.holdFlags, state.handCode))
        return true;

    m_chart.highlightMissedPlay(state.handCode);
    return false;
}

} // namespace quillet
