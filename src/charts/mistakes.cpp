#include "charts/mistakes.h"

#include "charts/chart_price.h"
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

// The kinds of hold that a student tells apart, the first that fits.
constexpr std::array<std::string_view, 23> plainKinds{"royal",
                                                      "straight flush",
                                                      "4 of a kind",
                                                      "full house",
                                                      "flush",
                                                      "straight",
                                                      "3 of a kind",
                                                      "2 pair",
                                                      "4 to a royal",
                                                      "4 to a straight flush",
                                                      "high pair",
                                                      "3 to a royal",
                                                      "4 to a flush",
                                                      "low pair",
                                                      "4 to an outside straight",
                                                      "4 to an inside straight",
                                                      "3 to a straight flush",
                                                      "4 high",
                                                      "3 high",
                                                      "2 high",
                                                      "10 and face, suited",
                                                      "1 high",
                                                      "nothing"};

std::string_view plainKind(const HoldFacts& held)
{
    const auto fits = [&held](std::string_view name) {
        return rowKinds()[*findRowKind(name)].fits(held);
    };
    const auto found = std::ranges::find_if(plainKinds, fits);
    return found == plainKinds.end() ? "other cards" : *found;
}

class Tally
{
public:
    void add(std::size_t row, const odds::DealtHand& hand, odds::Hold played, int members)
    {
        const std::int64_t cost = hand.worth[hand.bestHold] - hand.worth[played];
        if (cost == 0)
            return;
        Kind& kind = m_kinds[{row, plainKind(factsOf(hand, hand.bestHold))}];
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
