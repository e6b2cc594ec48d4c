#include "charts/chart_price.h"

#include "odds/bad_input.h"

#include <bit>

namespace quillet::charts
{

namespace
{

constexpr std::int64_t shares = CostSum::shares;

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
        if (shares % deal.choices != 0)
            throw odds::BadInput("too many holds of one deal fit a line of the chart; put its rows "
                                 "on several lines");
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
    price.rows.resize(chart.size());
    std::vector<PerTaken<CostSum>> costs(chart.size());
    odds::FinalHands perfect(heldCards);
    // Most deals are played perfectly, so only the differences from perfect play are added up.
    PerTaken<odds::FinalHands> differences{{perfect, perfect, perfect}};
    forEachPlayedDeal(heldCards, chart, [&](const PlayedDeal& deal) {
        const odds::DealtHand& hand = deal.hand;
        perfect.add(hand, hand.bestHold, deal.members * shares);
        price.rows[deal.play.row].deals += deal.members;
        price.dealsWithAChoice += deal.choices == 1 ? 0 : deal.members;
        price.dealsPlayedPerfectly +=
            hand.worth[deal.bestHold] == hand.worth[hand.bestHold] ? deal.members : 0;
        for (const Taken taken : allTaken) {
            std::int64_t cost = 0;
            forEachTaken(deal, taken, [&](odds::Hold hold, std::int64_t share) {
                if (hold == hand.bestHold)
                    return;
                cost += (hand.worth[hand.bestHold] - hand.worth[hold]) * share;
                differences[taken].add(hand, hold, deal.members * share);
                differences[taken].add(hand, hand.bestHold, -deal.members * share);
            });
            costs[deal.play.row][taken].add(hand, cost, deal.members);
        }
    });
    price.perfect = perfect.odds();
    for (const Taken taken : allTaken) {
        differences[taken].add(perfect);
        price.played[taken] = differences[taken].odds();
        for (std::size_t row = 0; row < chart.size(); ++row) {
            price.rows[row].loss[taken] = costs[row][taken].perCreditBet();
            price.rows[row].costliest[taken] = costs[row][taken].costliest();
        }
    }
    return price;
}

} // namespace quillet::charts
