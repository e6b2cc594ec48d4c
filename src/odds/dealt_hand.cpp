#include "odds/dealt_hand.h"

#include <algorithm>
#include <bit>

namespace quillet::odds
{

namespace
{

// The first hold in the set that no other comes before.
template <typename Before>
Hold firstOf(HoldSet holds, const Before& comesBefore)
{
    auto first = static_cast<Hold>(std::countr_zero(holds));
    forEachHold(holds, [&](Hold hold) { first = comesBefore(hold, first) ? hold : first; });
    return first;
}

template <Hold Card>
void subtractLarger(std::array<std::int64_t, holds>& pay)
{
    for (Hold block = 0; block < holds; block += 2 * Card) {
        for (Hold hold = block; hold < block + Card; ++hold)
            pay[hold] -= pay[hold + Card];
    }
}

} // namespace

HeldDeal heldDeal(const std::array<DeckPlace, 5>& cards, Hold held)
{
    HeldDeal deal{cards};
    std::ranges::sort(deal.places);
    for (std::size_t i = 0; i < cards.size(); ++i) {
        const auto place = std::ranges::find(deal.places, cards[i]) - deal.places.begin();
        deal.held = static_cast<std::uint8_t>(deal.held | (held >> i & 1U) << place);
    }
    return deal;
}

DealtHand::DealtHand(const HeldCards& heldCards, const std::array<DeckPlace, 5>& ascending)
    : places(ascending)
{
    dealtOutcome = outcomeOf(cardsAt(places));
    findClasses(heldCards);
    findWorth(heldCards);
}

Fraction DealtHand::expectedCredits(Hold hold) const
{
    return {worth[hold], worthUnit};
}

OutcomeCounts DealtHand::drawOutcomes(const HeldCards& heldCards, Hold hold) const
{
    OutcomeCounts counts{};
    forEachLargerHold(hold, [&](Hold larger, int sign) {
        if (larger == holdAll) {
            counts[dealtOutcome] += sign;
            return;
        }
        const OutcomeCounts& hands = heldCards.counts(classOfHold[larger]);
        for (std::size_t outcome = 0; outcome < outcomeCount; ++outcome)
            counts[outcome] += sign * hands[outcome];
    });
    return counts;
}

Hold DealtHand::bestOf(HoldSet candidates) const
{
    return firstOf(candidates, [this](Hold a, Hold b) { return worth[a] > worth[b]; });
}

Hold DealtHand::worstOf(HoldSet candidates) const
{
    return firstOf(candidates, [this](Hold a, Hold b) { return worth[a] < worth[b]; });
}

double DealtHand::penaltyOf(const HeldCards& heldCards, Hold hold, std::size_t discard) const
{
    // Hands with the hold in them and none of the other discards, which leave 48 cards to draw.
    const Hold back = 1U << discard;
    std::int64_t pay = 0;
    forEachLargerHold(hold, [&](Hold larger, int sign) {
        if ((larger & back) == 0)
            pay += sign * heldCards.pay(classOfHold[larger]);
    });
    const auto draws = static_cast<double>(choose[5 - cardsIn[hold]][48]);
    return static_cast<double>(pay) / draws -
           static_cast<double>(worth[hold]) / static_cast<double>(worthUnit);
}

void DealtHand::findClasses(const HeldCards& heldCards)
{
    std::array<std::uint32_t, holds> combination{};
    classOfHold[0] = heldCards.classOf(0, 0);
    for (Hold hold = 1; hold < holdAll; ++hold) {
        const std::size_t size = cardsIn[hold];
        const auto highest = static_cast<std::size_t>(std::bit_width(hold)) - 1;
        combination[hold] = combination[hold ^ (1U << highest)] + choose[size][places[highest]];
        classOfHold[hold] = heldCards.classOf(size, combination[hold]);
    }
}

void DealtHand::findWorth(const HeldCards& heldCards)
{
    for (Hold hold = 0; hold < holdAll; ++hold)
        worth[hold] = heldCards.pay(classOfHold[hold]);
    worth[holdAll] = heldCards.pays()[dealtOutcome];
    // The same sums as forEachLargerHold makes, for all holds at once.
    subtractLarger<1>(worth);
    subtractLarger<2>(worth);
    subtractLarger<4>(worth);
    subtractLarger<8>(worth);
    subtractLarger<16>(worth);
    for (Hold hold = 0; hold < holds; ++hold)
        worth[hold] *= unitsPerDraw[hold];
    bestHold = static_cast<Hold>(std::ranges::max_element(worth) - worth.begin());
}

} // namespace quillet::odds
