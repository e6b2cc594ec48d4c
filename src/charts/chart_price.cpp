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

// Calls visit with each hold that is taken, and the shares of the deal in which it is.
template <typename Visit>
void forEachTaken(const PlayedDeal& deal, Taken taken, const Visit& visit)
{
    if (deal.choices == 1)
        return visit(deal.bestHold, shares);
    switch (taken) {
    case Taken::best:
        return visit(deal.bestHold, shares);
    case Taken::worst:
        return visit(deal.worstHold, shares);
    case Taken::any:
        odds::forEachHold(deal.play.fitting,
                          [&](odds::Hold hold) { visit(hold, shares / deal.choices); });
    }
}

} // namespace

void forEachPlayedDeal(const odds::HeldCards& heldCards, const Chart& chart,
                       const std::function<void(const PlayedDeal&)>& visit)
{
    const ChartPlayer player(chart);
    odds::forEachDeal(heldCards, [&](const odds::DealtHand& hand, int members) {
        const Play play = player.play(hand);
        visit({hand, members, play, std::popcount(play.fitting), hand.bestOf(play.fitting),
               hand.worstOf(play.fitting)});
    });
}

ChartPrice priceChart(const odds::HeldCards& heldCards, const Chart& chart)
{
    ChartPrice price;
    std::vector<RowSum> rows(chart.size());
    odds::FinalHands perfect(heldCards);
    // Most deals are played perfectly, so only the differences from perfect play are added up.
    PerTaken<odds::FinalHands> differences{{perfect, perfect, perfect}};
    forEachPlayedDeal(heldCards, chart, [&](const PlayedDeal& deal) {
        const odds::DealtHand& hand = deal.hand;
        perfect.add(hand, hand.bestHold, deal.members * shares);
        PerTaken<std::int64_t> costs{};
        for (const Taken taken : allTaken) {
            forEachTaken(deal, taken, [&](odds::Hold hold, std::int64_t share) {
                if (hold == hand.bestHold)
                    return;
                costs[taken] += (hand.worth[hand.bestHold] - hand.worth[hold]) * share;
                differences[taken].add(hand, hold, deal.members * share);
                differences[taken].add(hand, hand.bestHold, -deal.members * share);
            });
        }
        rows[deal.play.row].add(hand, deal.members, costs);
        price.dealsWithAChoice += deal.choices == 1 ? 0 : deal.members;
        price.dealsPlayedPerfectly += costs[Taken::best] == 0 ? deal.members : 0;
    });
    price.perfect = perfect.odds();
    for (const Taken taken : allTaken) {
        differences[taken].add(perfect);
        price.played[taken] = differences[taken].odds();
    }
    for (const RowSum& row : rows)
        price.rows.push_back(row.price());
    return price;
}

} // namespace quillet::charts
