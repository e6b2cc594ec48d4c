#pragma once

#include "charts/chart_player.h"
#include "odds/fraction.h"

#include <array>
#include <functional>
#include <vector>

namespace quillet::charts
{

// Which of the holds that fit the row is taken.
enum class Taken { best, any, worst };
inline constexpr std::size_t waysToTake = 3;

// One row over all deals that it plays. The losses are against perfect play, in credits per credit
// paid over all deals of the game, so that the rows add up.
struct RowPrice {
    std::int64_t deals = 0; // none for a row that never plays
    std::array<odds::Fraction, waysToTake> loss;
    odds::Fraction costliest;                 // in credits, with the worst hold that fits
    std::array<odds::DeckPlace, 5> example{}; // the deal that costs this
};

// What a chart is worth over all deals, exactly, when they come from a fairly shuffled deck.
struct ChartPrice {
    odds::Fraction perfect; // credits won per credit paid by perfect play
    std::array<odds::Fraction, waysToTake> returned;
    std::vector<RowPrice> rows; // those of the chart

    [[nodiscard]] odds::Fraction loss(Taken taken) const
    {
        return perfect - returned[static_cast<std::size_t>(taken)];
    }
};

[[nodiscard]] ChartPrice priceChart(const odds::HeldCards& heldCards, const Chart& chart);

// One class of deals as a chart plays it.
struct PlayedDeal {
    const odds::DealtHand& hand;
    int members; // deals in the class, 1..24
    Play play;
    odds::Hold bestHold; // of those that fit; of holds worth the same, the first
    odds::Hold worstHold;
};

// Calls visit for each of the 134,459 classes, always in the same order.
void forEachPlayedDeal(const odds::HeldCards& heldCards, const Chart& chart,
                       const std::function<void(const PlayedDeal&)>& visit);

} // namespace quillet::charts
