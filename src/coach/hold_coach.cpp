#include "coach/hold_coach.h"

#include "coach/hold_judgement.h"

namespace quillet
{

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
