#pragma once

#include "coach/strategy_chart.h"
#include "engine/hand_coach.h"

#include <array>
#include <cstdint>
#include <functional>
#include <utility>

namespace quillet
{

// Whether the held cards alone have the play code bestPlay, and are as many as that play keeps.
// They need not be the cards that gave the hand this code.
[[nodiscard]] bool isCorrectHold(const std::array<Card, 5>& hand,
                                 const std::array<bool, 5>& holdFlags, std::int16_t bestPlay);

// Judges the player's hold against the best play of the dealt hand and shows the result on the
// chart.
class HoldCoach : public HandCoach
{
public:
    // alwaysShows returns whether the player wants to see the best play after every deal.
    HoldCoach(StrategyChart& chart, std::function<bool()> alwaysShows)
        : m_chart(chart), m_alwaysShows(std::move(alwaysShows))
    {
    }

    void resetChartColors() override { m_chart.resetChartColors(); }
    void highlightWinner(std::int16_t playCode) override { m_chart.highlightWinner(playCode); }
    void showBestPlay(std::int16_t playCode) override;
    [[nodiscard]] bool acceptHold(const HandState& state) override;

private:
    StrategyChart& m_chart;
    std::function<bool()> m_alwaysShows;
};

} // namespace quillet
