#pragma once

#include "odds/fraction.h"
#include "odds/held_cards.h"

#include <array>
#include <bit>
#include <cstdint>

namespace quillet::odds
{

// A hold as a set of bits, bit i for the i-th card of the hand.
using Hold = unsigned;
inline constexpr Hold holdAll = 31;
inline constexpr std::size_t holds = 32;

// Bit h is set when hold h is in the set.
using HoldSet = std::uint32_t;

[[nodiscard]] constexpr bool contains(HoldSet set, Hold hold)
{
    return (set >> hold & 1U) != 0;
}

// Calls visit for each hold in the set, ascending.
template <typename Visit>
void forEachHold(HoldSet set, const Visit& visit)
{
    for (; set != 0; set &= set - 1)
        visit(static_cast<Hold>(std::countr_zero(set)));
}

// The number of cards in each hold; without -mpopcnt std::popcount is a call.
inline constexpr std::array<std::size_t, holds> cardsIn = [] {
    std::array<std::size_t, holds> count{};
    for (Hold hold = 0; hold < holds; ++hold)
        count[hold] = static_cast<std::size_t>(std::popcount(hold));
    return count;
}();

// Five cards in ascending order, and which of them are held.
struct HeldDeal {
    std::array<DeckPlace, 5> places{};
    std::uint8_t held = 0; // a Hold
};

// Of cards in any order.
[[nodiscard]] HeldDeal heldDeal(const std::array<DeckPlace, 5>& cards, Hold held);

// One deal and the worth of its 32 holds when the other cards come from a fairly shuffled deck.
struct DealtHand {
    // Least common multiple of the numbers of possible draws: 0 to 5 of 47 cards.
    static constexpr std::int64_t worthUnit = 7669695;

    // Worth units per credit that one of the draws to a hold pays.
    static constexpr std::array<std::int64_t, holds> unitsPerDraw = [] {
        std::array<std::int64_t, holds> units{};
        for (Hold hold = 0; hold < holds; ++hold)
            units[hold] = worthUnit / choose[5 - cardsIn[hold]][47];
        return units;
    }();

    DealtHand(const HeldCards& heldCards, const std::array<DeckPlace, 5>& ascending);

    [[nodiscard]] Fraction expectedCredits(Hold hold) const;

    // How often each outcome comes up among all draws to this hold.
    [[nodiscard]] OutcomeCounts drawOutcomes(const HeldCards& heldCards, Hold hold) const;

    // The hold among these that is worth most or least; the first of equals.
    [[nodiscard]] Hold bestOf(HoldSet candidates) const;
    [[nodiscard]] Hold worstOf(HoldSet candidates) const;

    // How many credits more the hold would be worth if this discard were still in the deck;
    // negative if the hold is better off without it.
    [[nodiscard]] double penaltyOf(const HeldCards& heldCards, Hold hold,
                                   std::size_t discard) const;

    std::array<DeckPlace, 5> places{};
    std::size_t dealtOutcome = 0;
    std::array<HeldCards::ClassId, holds - 1> classOfHold{};
    std::array<std::int64_t, holds> worth{}; // expected credits times worthUnit
    Hold bestHold = 0;                       // of holds worth the same, the first

private:
    void findClasses(const HeldCards& heldCards);
    void findWorth(const HeldCards& heldCards);
};

// Calls visit for the hold and for each larger one, with the sign of inclusion and exclusion:
// draws that keep exactly the hold are the hands with the hold in it, less those that contain a
// discarded card too.
template <typename Visit>
void forEachLargerHold(Hold hold, const Visit& visit)
{
    const Hold discarded = holdAll & ~hold;
    for (Hold taken = discarded;; taken = (taken - 1) & discarded) {
        visit(hold | taken, cardsIn[taken] % 2 == 0 ? 1 : -1);
        if (taken == 0)
            break;
    }
}

} // namespace quillet::odds
