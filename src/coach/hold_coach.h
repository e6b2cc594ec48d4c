#pragma once

#include "coach/strategy_chart.h"
#include "engine/hand_coach.h"

namespace quillet
{

// Judges the player's hold against the best play of the dealt hand and shows the result on the
// chart. Both references must outlive the coach.
class HoldCoach : public HandCoach
{
public:
    // The player may change prfShowPokerPlay at any time.
    HoldCoach(StrategyChart& chart, const bool& prfShowPokerPlay)
        : m_chart(chart), m_prfShowPokerPlay(prfShowPokerPlay)
    {
    }

    void resetChartColors() override;
    void highlightWinner(std::int16_t playCode) override;
    void showBestPlay(std::int16_t playCode) override;
    [[nodiscard]] bool acceptHold(const HandState& state) override;

private:
    StrategyChart& m_chart;
    const bool& m_prfShowPokerPlay;
};

} // namespace quillet
