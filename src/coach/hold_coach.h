#pragma once

#include "coach/strategy_chart.h"
#include "engine/hand_coach.h"
#include "engine/hand_state.h"
#include "engine/preferences.h"

#include <string>

namespace quillet
{

// What the coach needs to make himself heard.
class CueOutput
{
public:
    virtual ~CueOutput() = default;
    // True when the file exists and is not empty; never fails.
    [[nodiscard]] virtual bool FileExists(const std::string& thePath) = 0;
    // Returns at once; the sound plays while the program goes on and cuts off the one before.
    virtual void sndPlaySound(const std::string& path) = 0;
};

// Judges the player's hold against the best play of the dealt hand and shows the result on the
// chart. The referenced objects outlive the coach.
class HoldCoach : public HandCoach
{
public:
    // Cues lie below the program's folder.
    HoldCoach(HandState& state, const Preferences& preferences, StrategyChart& chart,
              CueOutput& output, std::string programFolder);

    void resetChartColors() override;
    void highlightWinner(std::int16_t playCode) override;
    void showBestPlay() override;
    [[nodiscard]] bool acceptHold() override;
    void playSoundCue(std::string_view fileName) override;

private:
    void refuseHold(int cardsHeld);

    HandState& m_state;
    const Preferences& m_preferences;
    StrategyChart& m_chart;
    CueOutput& m_output;
    std::string m_programFolder;
};

} // namespace quillet
