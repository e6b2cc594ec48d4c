#include "coach/hold_coach.h"

#include "coach/hold_judgement.h"

#include <algorithm>
#include <utility>

namespace quillet
{

namespace
{

std::string_view wrongCue(int cardsHeld)
{
    switch (cardsHeld) {
    case 1:
        return "\\wavs\\wrong2.wav";
    case 2:
        return "\\wavs\\wrong3.wav";
    default:
        return "\\wavs\\wrong.wav";
    }
}

} // namespace

HoldCoach::HoldCoach(HandState& state, const Preferences& preferences, StrategyChart& chart,
                     CueOutput& output, std::string programFolder)
    : m_state(state), m_preferences(preferences), m_chart(chart), m_output(output),
      m_programFolder(std::move(programFolder))
{
}

void HoldCoach::resetChartColors()
{
    m_chart.resetChartColors();
}

void HoldCoach::highlightWinner(std::int16_t playCode)
{
    m_chart.highlightWinner(playCode);
}

void HoldCoach::showBestPlay()
{
    if (m_preferences.prfShowPokerPlay)
        m_chart.highlightBestPlay(m_state.handCode);
}

bool HoldCoach::acceptHold()
{
    const HoldJudgement judgement = judgeHold(m_state.hand, m_state.holdFlags, m_state.handCode);
    m_chart.resetChartColors();
    if (judgement.correct || !m_state.judgePending)
        return true;

    refuseHold(judgement.cardsHeld);
    return false;
}

void HoldCoach::refuseHold(int cardsHeld)
{
    m_chart.highlightMissedPlay(m_state.handCode);
    m_state.handDealt = true;
    m_state.holdFlags.fill(false);
    playSoundCue(wrongCue(cardsHeld));
    m_state.handBusy = false;
}

void HoldCoach::playSoundCue(std::string_view fileName)
{
    if (!m_preferences.prfSound)
        return;
    std::string path = m_programFolder + std::string(fileName);
    std::ranges::replace(path.begin() + static_cast<std::ptrdiff_t>(m_programFolder.size()),
                         path.end(), '\\', '/');
    if (m_output.FileExists(path))
        m_output.sndPlaySound(path);
}

} // namespace quillet
