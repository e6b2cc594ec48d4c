#include "charts/mistakes.h"

#include "charts/chart_price.h"
#include "charts/plain_kinds.h"
#include "engine/pay_table.h"
#include "odds/fair_odds.h"

#include <algorithm>
#include <bit>
#include <functional>
#include <map>
#include <utility>

namespace quillet::charts
{

namespace
{

class Tally
{
public:
    void add(std::size_t row, const odds::DealtHand& hand, odds::Hold played, int members)
    {
        const std::int64_t cost = hand.worth[hand.bestHold] - hand.worth[played];
        if (cost == 0)
            return;
        Kind& kind = m_kinds[{row, plainKindName(plainKindOf(factsOf(hand, hand.bestHold)))}];
        kind.told.deals += members;
        kind.cost += odds::Int128{cost} * members;
        if (cost > kind.costliest) {
            kind.costliest = cost;
            kind.told.example = hand.places;
            kind.told.played = played;
            kind.told.best = hand.bestHold;
        }
    }

    [[nodiscard]] std::vector<Mistake> mistakes(const Chart& chart)
    {
        std::vector<std::pair<odds::Int128, Mistake>> all;
        for (auto& [key, kind] : m_kinds) {
            kind.told.row = rowText(chart[key.first]);
            kind.told.instead = key.second;
            kind.told.cost = {kind.cost, odds::Int128{odds::FairOdds::deals} * wager *
                                             odds::DealtHand::worthUnit};
            kind.told.costliest = {kind.costliest, odds::DealtHand::worthUnit};
            all.emplace_back(kind.cost, kind.told);
        }
        std::ranges::stable_sort(all, std::greater(), &std::pair<odds::Int128, Mistake>::first);
        std::vector<Mistake> sorted;
        sorted.reserve(all.size());
        for (const auto& entry : all)
            sorted.push_back(entry.second);
        return sorted;
    }

private:
    struct Kind {
        Mistake told;
        odds::Int128 cost = 0; // in worth units
        std::int64_t costliest = 0;
    };

    std::map<std::pair<std::size_t, std::string_view>, Kind> m_kinds;
};

} // namespace

std::vector<Mistake> mistakesOf(const odds::HeldCards& heldCards, const Chart& chart)
{
    Tally tally;
    forEachPlayedDeal(heldCards, chart, [&tally](const PlayedDeal& deal) {
        tally.add(deal.play.row, deal.hand, deal.bestHold, deal.members);
    });
    return tally.mistakes(chart);
}

} // namespace quillet::charts
