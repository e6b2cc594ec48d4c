#pragma once

#include "odds/dealt_hand.h"
#include "odds/fraction.h"

#include <array>
#include <cstdint>
#include <functional>
#include <vector>

namespace quillet::odds
{

using OutcomeChances = std::array<Fraction, outcomeCount>;

// What one way to play all deals returns, exactly, with a fair shuffle.
struct FairOdds {
    static constexpr std::int64_t deals = choose[5][52];

    Fraction returned; // credits won per credit bet
    OutcomeChances chances;
};

// Adds up the final hands of many plays. The outcomes of a play are sums over classes of held
// cards, so it is enough to count how often each class is needed.
class FinalHands
{
public:
    explicit FinalHands(const HeldCards& heldCards)
        : m_heldCards(heldCards), m_timesNeeded(HeldCards::classCount)
    {
    }

    // The weight is a number of deals, in any unit; a negative one removes deals.
    void add(const DealtHand& hand, Hold hold, std::int64_t weight);
    void add(const FinalHands& others);

    [[nodiscard]] FairOdds odds() const;

private:
    const HeldCards& m_heldCards;
    std::int64_t m_deals = 0;                // the sum of the weights
    std::vector<std::int64_t> m_timesNeeded; // by class
    std::array<std::int64_t, outcomeCount> m_asDealt{};
};

// Calls visit for each of the 134,459 classes of deals, always in the same order, with one deal of
// the class and the number of deals in it, 1..24.
void forEachDeal(const HeldCards& heldCards,
                 const std::function<void(const DealtHand& hand, int members)>& visit);

// Of perfect play.
[[nodiscard]] FairOdds fairOdds(const HeldCards& heldCards);

} // namespace quillet::odds
