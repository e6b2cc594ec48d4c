#include "odds/fair_odds.h"

#include "engine/pay_table.h"
#include "odds/suit_classes.h"

#include <algorithm>
#include <functional>

namespace quillet::odds
{

void FinalHands::add(const DealtHand& hand, Hold hold, std::int64_t weight)
{
    m_deals += weight;
    const std::int64_t amount = weight * DealtHand::unitsPerDraw[hold];
    forEachLargerHold(hold, [&](Hold larger, int sign) {
        std::int64_t& sum = larger == holdAll ? m_asDealt[hand.dealtOutcome]
                                              : m_timesNeeded[hand.classOfHold[larger]];
        sum += sign * amount;
    });
}

void FinalHands::add(const FinalHands& others)
{
    m_deals += others.m_deals;
    std::ranges::transform(m_timesNeeded, others.m_timesNeeded, m_timesNeeded.begin(), std::plus());
    std::ranges::transform(m_asDealt, others.m_asDealt, m_asDealt.begin(), std::plus());
}

FairOdds FinalHands::odds() const
{
    FairOdds odds;
    for (std::size_t outcome = 0; outcome < outcomeCount; ++outcome) {
        Int128 total = m_asDealt[outcome];
        for (std::size_t id = 0; id < m_timesNeeded.size(); ++id)
            total += Int128{m_timesNeeded[id]} *
                     m_heldCards.counts(static_cast<HeldCards::ClassId>(id))[outcome];
        odds.chances[outcome] = {total, Int128{m_deals} * DealtHand::worthUnit};
        odds.returned = odds.returned + odds.chances[outcome] * m_heldCards.pays()[outcome] / wager;
    }
    return odds;
}

void forEachDeal(const HeldCards& heldCards,
                 const std::function<void(const DealtHand& hand, int members)>& visit)
{
    forEachClass(5, [&](const SuitSets& sets) {
        visit(DealtHand(heldCards, placesOf<5>(sets)), classSize(sets));
    });
}

FairOdds fairOdds(const HeldCards& heldCards)
{
    FinalHands finalHands(heldCards);
    forEachDeal(heldCards, [&](const DealtHand& hand, int members) {
        finalHands.add(hand, hand.bestHold, members);
    });
    return finalHands.odds();
}

} // namespace quillet::odds
