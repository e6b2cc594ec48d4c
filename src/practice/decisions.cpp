#include "practice/decisions.h"

#include "engine/pay_table.h"
#include "odds/fair_odds.h"

#include <algorithm>
#include <bit>
#include <cassert>
#include <functional>
#include <numeric>

namespace quillet::practice
{

namespace
{

using KindOfHold = std::array<charts::PlainKind, odds::holds>;

// The holds that are wrong and keep cards of no kind, such as a pair with a kicker.
std::uint32_t wildHolds(const odds::DealtHand& hand, const KindOfHold& kind)
{
    std::uint32_t wild = 0;
    for (odds::Hold hold = 0; hold < odds::holds; ++hold) {
        if (kind[hold] == charts::otherCards && hand.worth[hold] < hand.worth[hand.bestHold])
            wild |= 1U << hold;
    }
    return wild;
}

// In credits won per credit paid, of what all deals of the game are worth.
double returnOf(odds::Int128 worth)
{
    return odds::Fraction(worth,
                          odds::Int128{odds::FairOdds::deals} * odds::DealtHand::worthUnit * wager)
        .value();
}

} // namespace

double Decision::probability() const
{
    return static_cast<double>(deals) / static_cast<double>(odds::FairOdds::deals);
}

double Decision::lead() const
{
    return odds::Fraction(leadSum, odds::Int128{deals} * odds::DealtHand::worthUnit).value();
}

double Decision::anyHoldCost() const
{
    return odds::Fraction(anyHoldSum,
                          odds::Int128{deals} * odds::DealtHand::worthUnit * odds::holds)
        .value();
}

double Decision::wildShare() const
{
    return odds::Fraction(wildHolds, odds::Int128{deals} * odds::holds).value();
}

double Decision::chartErrorRate() const
{
    return odds::Fraction(chartErrors, deals).value();
}

std::string Decision::name() const
{
    return std::string(charts::plainKindName(best)) + " over " +
           std::string(charts::plainKindName(rival));
}

Decisions::Decisions(const odds::HeldCards& heldCards)
{
    m_kindOfClass.reserve(charts::factsByClass().size());
    for (const charts::HoldFacts& held : charts::factsByClass())
        m_kindOfClass.push_back(charts::plainKindOf(held));
    for (auto& row : m_id)
        row.fill(none);
    addUp(heldCards, charts::ChartPlayer(charts::trainersChart()));
    sort();
}

double Decisions::perfectReturn() const
{
    return returnOf(m_worth);
}

double Decisions::chartReturn() const
{
    odds::Int128 worth = m_worth;
    for (const Decision& decision : m_all)
        worth -= decision.chartCostSum;
    return returnOf(worth);
}

std::span<const DealClass> Decisions::deals(DecisionId id) const
{
    return std::span(m_deals).subspan(m_firstOf[id], m_firstOf[id + 1] - m_firstOf[id]);
}

DealtDecision Decisions::of(const odds::DealtHand& hand) const
{
    KindOfHold kind{};
    for (odds::Hold hold = 0; hold < odds::holdAll; ++hold)
        kind[hold] = m_kindOfClass[hand.classOfHold[hold]];
    kind[odds::holdAll] = charts::plainKindOf(charts::factsOf(hand, odds::holdAll));
    std::uint32_t others = 0;
    for (odds::Hold hold = 0; hold < odds::holds; ++hold)
        others |=
            kind[hold] != kind[hand.bestHold] && kind[hold] != charts::otherCards ? 1U << hold : 0;
    const odds::Hold rival = others != 0 ? hand.bestOf(others) : odds::holdAll;
    return {kind[hand.bestHold], kind[rival], rival, wildHolds(hand, kind)};
}

DecisionId Decisions::idOf(const DealtDecision& decision) const
{
    return m_id[decision.best][decision.rival];
}

std::optional<DecisionId> Decisions::find(std::string_view name) const
{
    const auto found = std::ranges::find(m_all, name, &Decision::name);
    if (found == m_all.end())
        return std::nullopt;
    return static_cast<DecisionId>(found - m_all.begin());
}

void Decisions::addUp(const odds::HeldCards& heldCards, const charts::ChartPlayer& trainersChart)
{
    m_deals.reserve(134'459);
    odds::forEachDeal(heldCards, [&](const odds::DealtHand& hand, int members) {
        const DealtDecision met = of(hand);
        std::uint8_t& id = m_id[met.best][met.rival];
        if (id == none) {
            assert(m_all.size() < none);
            id = static_cast<std::uint8_t>(m_all.size());
            m_all.push_back({met.best, met.rival});
        }
        m_deals.push_back({hand.places, id, static_cast<std::uint8_t>(members)});

        const std::int64_t best = hand.worth[hand.bestHold];
        const std::int64_t chartCost = best - hand.worth[trainersChart.bestHold(hand)];
        Decision& decision = m_all[id];
        m_worth += odds::Int128{best} * members;
        decision.deals += members;
        decision.leadSum += odds::Int128{best - hand.worth[met.rivalHold]} * members;
        decision.anyHoldSum +=
            odds::Int128{best * static_cast<std::int64_t>(odds::holds) -
                         std::accumulate(hand.worth.begin(), hand.worth.end(), std::int64_t{0})} *
            members;
        decision.wildHolds += std::int64_t{std::popcount(met.wild)} * members;
        decision.chartErrors += chartCost != 0 ? members : 0;
        decision.chartCostSum += chartCost * members;
    });
}

void Decisions::sort()
{
    std::ranges::stable_sort(m_all, std::greater(), &Decision::deals);
    std::vector<std::uint8_t> newId(m_all.size());
    for (DecisionId id = 0; id < m_all.size(); ++id) {
        std::uint8_t& before = m_id[m_all[id].best][m_all[id].rival];
        newId[before] = static_cast<std::uint8_t>(id);
        before = newId[before];
    }
    m_firstOf.assign(m_all.size() + 1, 0);
    for (DealClass& deal : m_deals) {
        deal.decision = newId[deal.decision];
        ++m_firstOf[deal.decision + 1];
    }
    std::partial_sum(m_firstOf.begin(), m_firstOf.end(), m_firstOf.begin());
    std::ranges::stable_sort(m_deals, {}, &DealClass::decision);
}

} // namespace quillet::practice
