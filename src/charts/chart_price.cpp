#include "charts/chart_price.h"

#include "engine/pay_table.h"
#include "odds/fair_odds.h"

#include <bit>

namespace quillet::charts
{

namespace
{

// Every number of holds that can fit a row, 1 to 10, divides it.
constexpr std::int64_t shares = 2520;

// Losses in shares of a worth unit.
using Losses = std::array<odds::Int128, waysToTake>;

odds::Fraction perCreditPaid(odds::Int128 sum)
{
    constexpr odds::Int128 unit =
        odds::Int128{odds::FairOdds::deals} * shares * wager * odds::DealtHand::worthUnit;
    return {sum, unit};
}

} // namespace

void forEachPlayedDeal(const odds::HeldCards& heldCards, const Chart& chart,
                       const std::function<void(const PlayedDeal&)>& visit)
{
    const HoldTable table(heldCards);
    const ChartPlayer player(table, chart);
    odds::forEachClass(5, [&](const odds::SuitSets& sets) {
        const odds::DealtHand hand(heldCards, odds::placesOf<5>(sets));
        const Play play = player.play(hand);
        visit({hand, odds::classSize(sets), play, hand.bestOf(play.fitting),
               hand.worstOf(play.fitting)});
    });
}

ChartPrice priceChart(const odds::HeldCards& heldCards, const Chart& chart)
{
    odds::Int128 perfect = 0;
    std::vector<Losses> losses(chart.size());
    std::vector<std::int64_t> costliest(chart.size(), -1);
    ChartPrice price;
    price.rows.resize(chart.size());

    forEachPlayedDeal(heldCards, chart, [&](const PlayedDeal& deal) {
        const odds::DealtHand& hand = deal.hand;
        const std::int64_t best = hand.worth[hand.bestHold];
        const std::int64_t worstLoss = best - hand.worth[deal.worstHold];
        const std::int64_t share = shares / std::popcount(deal.play.fitting);
        std::int64_t anyLoss = 0;
        for (std::uint32_t left = deal.play.fitting; left != 0; left &= left - 1)
            anyLoss +=
                share * (best - hand.worth[static_cast<std::size_t>(std::countr_zero(left))]);

        perfect += odds::Int128{best} * shares * deal.members;
        Losses& row = losses[deal.play.row];
        row[0] += odds::Int128{best - hand.worth[deal.bestHold]} * shares * deal.members;
        row[1] += odds::Int128{anyLoss} * deal.members;
        row[2] += odds::Int128{worstLoss} * shares * deal.members;
        RowPrice& told = price.rows[deal.play.row];
        told.deals += deal.members;
        if (worstLoss > costliest[deal.play.row]) {
            costliest[deal.play.row] = worstLoss;
            told.costliest = {worstLoss, odds::DealtHand::worthUnit};
            told.example = hand.places;
        }
    });

    price.perfect = perCreditPaid(perfect);
    for (std::size_t way = 0; way < waysToTake; ++way) {
        odds::Int128 lost = 0;
        for (std::size_t row = 0; row < chart.size(); ++row) {
            lost += losses[row][way];
            price.rows[row].loss[way] = perCreditPaid(losses[row][way]);
        }
        price.returned[way] = perCreditPaid(perfect - lost);
    }
    return price;
}

} // namespace quillet::charts
