#pragma once

#include "engine/hand_state.h"

#include <cstdint>

namespace quillet
{

// The verdicts of the coach, shown on the chart.
class HandCoach
{
public:
    virtual ~HandCoach() = default;

    virtual void resetChartColors() = 0;
    virtual void highlightWinner(std::int16_t playCode) = 0;
    // After a deal: lights its best play if the player wants to see it.
    virtual void showBestPlay(std::int16_t playCode) = 0;
    // Returns whether the hold is correct. If not, the chart shows the missed play.
    [[nodiscard]] virtual bool acceptHold(const HandState& state) = 0;
};

} // namespace quillet
