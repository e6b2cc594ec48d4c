#pragma once

#include "charts/chart_player.h"

#include <optional>
#include <string>

namespace quillet::practice
{

// What an answer is worth.
struct Judgement {
    bool right = false;
    std::uint32_t allowed = 0; // bit h is set when hold h would have been right
    odds::Hold best = 0;       // of perfect play
    odds::Hold bestAllowed = 0;
    odds::Fraction cost;      // in credits against perfect play; may be above 0 for a right answer
    odds::Fraction chartCost; // what the best hold that the chart allows gives away itself
};

// What counts as right: perfect play, or what a chart allows.
class Standard
{
public:
    Standard() = default; // perfect play
    explicit Standard(const charts::Chart& chart);

    [[nodiscard]] Judgement judge(const odds::DealtHand& hand, odds::Hold held) const;

    [[nodiscard]] bool isPerfect() const { return !m_player; }

    // The row of the chart that plays the deal, as it is written in charts; empty for perfect play.
    [[nodiscard]] std::string row(const odds::DealtHand& hand) const;

private:
    charts::Chart m_chart;
    std::optional<charts::ChartPlayer> m_player;
};

} // namespace quillet::practice
