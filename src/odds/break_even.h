#pragma once

#include "odds/fair_odds.h"

#include <optional>
#include <vector>

namespace quillet::odds
{

// The royal at which a way to play returns exactly what is bet.
struct BreakEven {
    Fraction royal;  // credits
    Fraction chance; // of a royal
};

// Of a fixed way to play, with its odds at these pays. Nothing if no royal of 0 or more would do.
[[nodiscard]] std::optional<BreakEven> breakEven(const FairOdds& odds, const Pays& pays);

// Of perfect play, which changes with the royal. Nothing if it returns more than is bet even
// without a royal. The royal that the pay table has makes no difference.
[[nodiscard]] std::optional<BreakEven> perfectBreakEven(const HeldCards& heldCards);

// A hold that is best from this royal up to that of the next.
struct BestHold {
    Fraction royal;
    Hold hold;
};

// From a royal of 0 on, ascending; of holds that are always worth the same, the first.
[[nodiscard]] std::vector<BestHold> bestHolds(const HeldCards& heldCards, const DealtHand& hand);

} // namespace quillet::odds
