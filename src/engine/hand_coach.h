#pragma once

#include "engine/hand_state.h"

#include <cstdint>

namespace quillet
{

// What a player learns of a hand from the coach, who shows it on the chart.
class HandCoach
{
public:
    virtual ~HandCoach() = default;

    virtual void resetChartColors() = 0;
    virtual void highlightWinner(std::int16_t playCode) = 0;
    // After a deal: lights its best play if the player wants to see it.
    virtual void showBestPlay(std::int16_t playCode) = 0;
    // Whether the hold may be drawn to. If not, the chart shows the play that was missed.
    [[nodiscard]] virtual bool acceptHold(const HandState& state) = 0;
};

} // namespace quillet
