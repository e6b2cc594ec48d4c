#include "charts/chart_price.h"

#include "engine/pay_table.h"

#include <bit>

namespace quillet::charts
{

namespace
{

// Every number of holds that can fit a row, 1 to 10, divides it, so that each gets a whole share.
constexpr std::int64_t shares = 2520;

odds::Fraction perCreditBet(odds::Int128 sum)
{
    constexpr odds::Int128 unit =
        odds::Int128{odds::FairOdds::deals} * shares * wager * odds::DealtHand::worthUnit;
    return {sum, unit};
}

// Adds up the deals that one row plays. Costs are in shares of a worth unit.
class RowSum
{
public:
    void add(const odds::DealtHand& hand, int members, const PerTaken<std::int64_t>& costs)
    {
        m_deals += members;
        for (const Taken taken : allTaken) {
            m_cost[taken] += odds::Int128{costs[taken]} * members;
            if (costs[taken] > m_highest[taken]) {
                m_highest[taken] = costs[taken];
                m_places[taken] = hand.places;
            }
        }
    }

    [[nodiscard]] odds::Int128 cost(Taken taken) const { return m_cost[taken]; }

    [[nodiscard]] RowPrice price() const
    {
        RowPrice price{m_deals, {}, {}};
        for (const Taken taken : allTaken) {
            price.loss[taken] = perCreditBet(m_cost[taken]);
            price.costliest[taken] = {
                {m_highest[taken], odds::Int128{odds::DealtHand::worthUnit} * shares},
                m_places[taken]};
        }
        return price;
    }

private:
    std::int64_t m_deals = 0;
    PerTaken<odds::Int128> m_cost{};
    PerTaken<std::int64_t> m_highest{};
    PerTaken<std::array<odds::DeckPlace, 5>> m_places{};
};

// What each way of taking a hold costs in one deal.
PerTaken<std::int64_t> costsOf(const PlayedDeal& deal)
{
    const odds::DealtHand& hand = deal.hand;
    const std::int64_t best = hand.worth[hand.bestHold];
    PerTaken<std::int64_t> costs{};
    costs[Taken::best] = (best - hand.worth[deal.bestHold]) * shares;
    costs[Taken::worst] = (best - hand.worth[deal.worstHold]) * shares;
    odds::forEachHold(deal.play.fitting, [&](odds::Hold hold) {
        costs[Taken::any] +=
            (best - hand.worth[hold]) * (shares / std::popcount(deal.play.fitting));
    });
    return costs;
}

void addFinalHands(PerTaken<odds::FinalHands>& finalHands, const PlayedDeal& deal)
{
    const std::int64_t weight = deal.members * shares;
    finalHands[Taken::best].add(deal.hand, deal.bestHold, weight);
    finalHands[Taken::worst].add(deal.hand, deal.worstHold, weight);
    odds::forEachHold(deal.play.fitting, [&](odds::Hold hold) {
        finalHands[Taken::any].add(deal.hand, hold, weight / std::popcount(deal.play.fitting));
    });
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
    std::vector<RowSum> rows(chart.size());
    const odds::FinalHands none(heldCards);
    PerTaken<odds::FinalHands> finalHands{{none, none, none}};
    ChartPrice price;
    forEachPlayedDeal(heldCards, chart, [&](const PlayedDeal& deal) {
        const PerTaken<std::int64_t> costs = costsOf(deal);
        perfect += odds::Int128{deal.hand.worth[deal.hand.bestHold]} * shares * deal.members;
        rows[deal.play.row].add(deal.hand, deal.members, costs);
        addFinalHands(finalHands, deal);
        price.dealsWithAChoice += std::has_single_bit(deal.play.fitting) ? 0 : deal.members;
        price.dealsPlayedPerfectly += costs[Taken::best] == 0 ? deal.members : 0;
    });
    price.perfect = perCreditBet(perfect);
    for (const Taken taken : allTaken) {
        constexpr odds::Int128 deals = odds::Int128{odds::FairOdds::deals} * shares;
        price.chances[taken] = finalHands[taken].chances(deals);
        odds::Int128 cost = 0;
        for (const RowSum& row : rows)
            cost += row.cost(taken);
        price.returned[taken] = perCreditBet(perfect - cost);
    }
    for (const RowSum& row : rows)
        price.rows.push_back(row.price());
    return price;
}

} // namespace quillet::charts
