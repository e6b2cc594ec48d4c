#include "charts/mistakes.h"

#include "charts/chart_price.h"
#include "charts/plain_kinds.h"

#include <algorithm>
#include <functional>
#include <map>
#include <utility>

namespace quillet::charts
{

std::vector<Mistake> mistakesOf(const odds::HeldCards& heldCards, const Chart& chart)
{
    struct Group {
        Mistake mistake;
        CostSum costs;
    };
    std::map<std::pair<std::size_t, PlainKind>, Group> groups;
    forEachPlayedDeal(heldCards, chart, [&](const PlayedDeal& deal) {
        const odds::DealtHand& hand = deal.hand;
        const std::int64_t cost = hand.worth[hand.bestHold] - hand.worth[deal.bestHold];
        if (cost == 0)
            return;
        Group& group = groups[{deal.play.row, plainKindOf(factsOf(hand, hand.bestHold))}];
        group.mistake.deals += deal.members;
        if (group.costs.add(hand, cost * CostSum::shares, deal.members)) {
            group.mistake.played = deal.bestHold;
            group.mistake.best = hand.bestHold;
        }
    });
    std::vector<Mistake> mistakes;
    for (const auto& [key, group] : groups) {
        Mistake& mistake = mistakes.emplace_back(group.mistake);
        mistake.row = rowText(chart[key.first]);
        mistake.instead = plainKindName(key.second);
        mistake.cost = group.costs.perCreditBet();
        mistake.costliest = group.costs.costliest().cost;
        mistake.example = group.costs.costliest().places;
    }
    std::ranges::stable_sort(mistakes, std::greater(),
                             [](const Mistake& mistake) { return mistake.cost.value(); });
    return mistakes;
}

} // namespace quillet::charts
