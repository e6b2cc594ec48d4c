#include "charts/deal_groups.h"

#include "charts/chart_player.h"
#include "odds/fair_odds.h"

#include <algorithm>
#include <functional>
#include <iterator>
#include <map>
#include <utility>

namespace quillet::charts
{

namespace
{

std::vector<RowKindId> kindsThatFit(const HoldFacts& held)
{
    std::vector<RowKindId> fitting;
    for (RowKindId kind = 0; kind < rowKinds().size(); ++kind) {
        if (rowKinds()[kind].fits(held))
            fitting.push_back(kind);
    }
    return fitting;
}

// Finds the rows that fit, for one deal after the other.
class DealFits
{
public:
    DealFits() : worst(rowKinds().size()), worth(rowKinds().size())
    {
        std::ranges::transform(factsByClass(), std::back_inserter(m_kindsOfClass), kindsThatFit);
    }

    // The kinds of row that fit the deal, those that lose least first.
    std::vector<RowKindId> kindsThatFitAny(const odds::DealtHand& hand, int members)
    {
        std::ranges::fill(worst, -1);
        for (odds::Hold hold = 0; hold < odds::holdAll; ++hold)
            add(m_kindsOfClass[hand.classOfHold[hold]], hand, hold, members);
        add(kindsThatFit(factsOf(hand, odds::holdAll)), hand, odds::holdAll, members);
        std::vector<RowKindId> kinds;
        for (RowKindId kind = 0; kind < worst.size(); ++kind) {
            if (worst[kind] >= 0)
                kinds.push_back(kind);
        }
        std::ranges::stable_sort(kinds, {}, [this](RowKindId kind) { return worst[kind]; });
        return kinds;
    }

    std::vector<DealGroups::Loss> worst;          // by kind, of the last deal; -1 if none fits
    std::vector<std::pair<double, double>> worth; // by kind, of all holds: their sum and number

private:
    void add(const std::vector<RowKindId>& kinds, const odds::DealtHand& hand, odds::Hold hold,
             int members)
    {
        for (const RowKindId kind : kinds) {
            if (!allows({kind}, hand, hold))
                continue;
            worst[kind] =
                std::max(worst[kind], (hand.worth[hand.bestHold] - hand.worth[hold]) * members);
            worth[kind].first += static_cast<double>(hand.worth[hold] * members);
            worth[kind].second += members;
        }
    }

    std::vector<std::vector<RowKindId>> m_kindsOfClass;
};

} // namespace

DealGroups::DealGroups(const odds::HeldCards& heldCards) : m_fits(rowKinds().size())
{
    // The kinds in the order of their losses, each with whether it loses more than the one before.
    using Key = std::vector<std::pair<RowKindId, bool>>;
    std::map<Key, std::vector<Loss>> groups;
    DealFits fits;
    odds::forEachDeal(heldCards, [&](const odds::DealtHand& hand, int members) {
        const std::vector<RowKindId> kinds = fits.kindsThatFitAny(hand, members);
        Key key;
        Loss before = 0;
        for (const RowKindId kind : kinds)
            key.emplace_back(kind, std::exchange(before, fits.worst[kind]) < fits.worst[kind]);
        std::vector<Loss>& sums = groups[key];
        sums.resize(kinds.size());
        for (std::size_t i = 0; i < kinds.size(); ++i)
            sums[i] += fits.worst[kinds[i]];
    });
    for (const auto& [key, sums] : groups) {
        for (std::size_t i = 0; i < key.size(); ++i)
            m_fits[key[i].first].push_back({static_cast<std::uint32_t>(m_count), sums[i]});
        ++m_count;
    }
    for (RowKindId kind = 0; kind < nothingRow(); ++kind)
        m_byWorth.push_back({kind});
    std::ranges::stable_sort(m_byWorth, std::greater(), [&](const Row& row) {
        const auto& [sum, holds] = fits.worth[row.kind];
        return sum / std::max(holds, 1.0);
    });
    m_byWorth.push_back({nothingRow()});
}

} // namespace quillet::charts
