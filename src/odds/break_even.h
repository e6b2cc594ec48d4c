#pragma once

#include "odds/fair_odds.h"

#include <array>
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

// A hold that is best from this royal up to that of the next.
struct BestHold {
    Fraction royal;
    Hold hold;
};

// A pay table whose royal is left open. The worth of a hold is then a line: what the other hands
// pay, and the chance of a royal times the royal.
class OpenRoyal
{
public:
    explicit OpenRoyal(const Pays& pays);

    // Of perfect play, which changes with the royal. Nothing if it returns more than is bet even
    // without a royal.
    [[nodiscard]] std::optional<BreakEven> breakEven() const;

    // From a royal of 0 on, ascending; of holds that are always worth the same, the first.
    [[nodiscard]] std::vector<BestHold> bestHolds(const std::array<DeckPlace, 5>& ascending) const;

private:
    [[nodiscard]] FairOdds perfectAt(const Fraction& royal) const;

    std::int64_t m_start; // the highest pay
    HeldCards m_others;   // pays all hands but the royal
    HeldCards m_royals;   // pays a credit for a royal
};

} // namespace quillet::odds
