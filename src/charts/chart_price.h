#pragma once

#include "charts/chart_player.h"
#include "charts/cost_sum.h"
#include "odds/fair_odds.h"

#include <array>
#include <functional>
#include <vector>

namespace quillet::charts
{

// Which of the holds that fit the row the player takes.
enum class Taken { best, any, worst };
inline constexpr std::array allTaken{Taken::best, Taken::any, Taken::worst};

template <typename T>
struct PerTaken : std::array<T, allTaken.size()> {
    using std::array<T, allTaken.size()>::operator[];
    T& operator[](Taken taken) { return (*this)[static_cast<std::size_t>(taken)]; }
    const T& operator[](Taken taken) const { return (*this)[static_cast<std::size_t>(taken)]; }
};

// One row over all deals that it plays. The losses are against perfect play, in credits per credit
// bet over all deals of the game, so that the rows add up.
struct RowPrice {
    std::int64_t deals = 0; // none for a row that is never used
    PerTaken<odds::Fraction> loss;
    PerTaken<CostliestDeal> costliest;
};

// What a chart returns over all deals, and what perfect play does.
struct ChartPrice {
    odds::FairOdds perfect;
    PerTaken<odds::FairOdds> played;
    std::vector<RowPrice> rows;            // those of the chart
    std::int64_t dealsWithAChoice = 0;     // more than one hold fits
    std::int64_t dealsPlayedPerfectly = 0; // with the best hold that fits

    [[nodiscard]] odds::Fraction loss(Taken taken) const
    {
        return perfect.returned - played[taken].returned;
    }
};

[[nodiscard]] ChartPrice priceChart(const odds::HeldCards& heldCards, const Chart& chart);

// One class of deals as a chart plays it.
struct PlayedDeal {
    const odds::DealtHand& hand;
    int members; // deals in the class, 1..24
    Play play;
    int choices;         // holds that fit
    odds::Hold bestHold; // of those that fit; of holds worth the same, the first
    odds::Hold worstHold;
};

// Calls visit for each of the 134,459 classes, always in the same order.
void forEachPlayedDeal(const odds::HeldCards& heldCards, const Chart& chart,
                       const std::function<void(const PlayedDeal&)>& visit);

} // namespace quillet::charts
