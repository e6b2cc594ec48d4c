#include "practice/answer.h"

#include <algorithm>

namespace quillet::practice
{

HeldDeal heldDeal(const std::array<odds::DeckPlace, 5>& cards, odds::Hold held)
{
    HeldDeal deal{cards};
    std::ranges::sort(deal.places);
    for (std::size_t i = 0; i < cards.size(); ++i) {
        const auto place = std::ranges::find(deal.places, cards[i]) - deal.places.begin();
        deal.held = static_cast<std::uint8_t>(deal.held | (held >> i & 1U) << place);
    }
    return deal;
}

Answer answerTo(const Decisions& decisions, const odds::DealtHand& hand, odds::Hold held)
{
    const odds::Fraction cost(hand.worth[hand.bestHold] - hand.worth[held],
                              odds::DealtHand::worthUnit);
    const DealtDecision met = decisions.of(hand);
    return {decisions.idOf(met), cost.value(), (met.wild >> held & 1U) != 0};
}

} // namespace quillet::practice
