#pragma once

#include <cstdint>
#include <string_view>

namespace quillet
{

// What a hand asks of the coach, who reads and writes the same hand state.
class HandCoach
{
public:
    virtual ~HandCoach() = default;

    virtual void resetChartColors() = 0;
    virtual void highlightWinner(std::int16_t playCode) = 0;
    // After a deal: lights the best play if the player wants to see it.
    virtual void showBestPlay() = 0;
    // Whether the hold may be drawn to. A refusal is dealt with completely: feedback given,
    // holds cleared, the hand waiting for the next attempt.
    [[nodiscard]] virtual bool acceptHold() = 0;
    // The cue's name begins with a backslash: "\wavs\deal.wav". Never fails.
    virtual void playSoundCue(std::string_view fileName) = 0;
};

} // namespace quillet
