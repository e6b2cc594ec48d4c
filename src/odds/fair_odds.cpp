#include "odds/fair_odds.h"

#include "engine/pay_table.h"
#include "odds/suit_classes.h"

namespace quillet::odds
{

void FinalHands::add(const DealtHand& hand, Hold hold, std::int64_t weight)
{
    const std::int64_t amount = weight * DealtHand::unitsPerDraw[cardsIn[hold]];
    forEachLargerHold(hold, [&](Hold larger, int sign) {
        std::int64_t& sum = larger == holdAll ? m_asDealt[hand.dealtOutcome]
                                              : m_timesNeeded[hand.classOfHold[larger]];
        sum += sign * amount;
    });
}

OutcomeChances FinalHands::chances(Int128 deals) const
{
    OutcomeChances chances;
    for (std::size_t outcome = 0; outcome < outcomes; ++outcome) {
        Int128 total = m_asDealt[outcome];
        for (std::size_t id = 0; id < m_timesNeeded.size(); ++id)
            total += Int128{m_timesNeeded[id]} *
                     m_heldCards.counts(static_cast<HeldCards::ClassId>(id))[outcome];
        chances[outcome] = {total, deals * DealtHand::worthUnit};
    }
    return chances;
}

FairOdds fairOdds(const HeldCards& heldCards)
{
    FinalHands finalHands(heldCards);
    Int128 worth = 0;
    forEachClass(5, [&](const SuitSets& sets) {
        const DealtHand hand(heldCards, placesOf<5>(sets));
        const int members = classSize(sets);
        finalHands.add(hand, hand.bestHold, members);
        worth += Int128{hand.worth[hand.bestHold]} * members;
    });
    constexpr Int128 deals = FairOdds::deals;
    return {{worth, deals * DealtHand::worthUnit * wager}, finalHands.chances(deals)};
}

} // namespace quillet::odds
