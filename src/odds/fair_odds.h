#pragma once

#include "odds/dealt_hand.h"
#include "odds/fraction.h"

#include <array>
#include <cstdint>
#include <vector>

namespace quillet::odds
{

using OutcomeChances = std::array<Fraction, outcomes>;

// Adds up the final hands of many plays. The outcomes of a play are sums over classes of held
// cards, so it is enough to count how often each class is needed.
class FinalHands
{
public:
    explicit FinalHands(const HeldCards& heldCards)
        : m_heldCards(heldCards), m_timesNeeded(heldCards.classes())
    {
    }

    // The weight is the number of deals, in any unit.
    void add(const DealtHand& hand, Hold hold, std::int64_t weight);

    // The weights of all plays add up to `deals`.
    [[nodiscard]] OutcomeChances chances(Int128 deals) const;

private:
    const HeldCards& m_heldCards;
    std::vector<std::int64_t> m_timesNeeded; // by class
    std::array<std::int64_t, outcomes> m_asDealt{};
};

// What perfect play of all deals returns, exactly, with a fair shuffle.
struct FairOdds {
    static constexpr std::int64_t deals = choose[5][52];

    Fraction returned; // credits won per credit bet
    OutcomeChances chances;
};

[[nodiscard]] FairOdds fairOdds(const HeldCards& heldCards);

} // namespace quillet::odds
