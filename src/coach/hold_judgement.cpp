#include "coach/hold_judgement.h"

#include "engine/hand_evaluation.h"

#include <cstddef>
#include <utility>

namespace quillet
{

bool isCorrectHold(const std::array<Card, 5>& hand, const std::array<bool, 5>& holdFlags,
                   std::int16_t bestPlay)
{
    std::array<Card, 5> heldCards;
    for (int slot = 0; slot < 5; ++slot)
        heldCards[static_cast<std::size_t>(slot)] = fillerCard(slot);
    std::size_t held = 0;
    for (std::size_t slot = 0; slot < hand.size(); ++slot)
        if (holdFlags[slot])
            heldCards[held++] = hand[slot];

    return std::cmp_equal(held, CardsToHand(bestPlay)) &&
           EvaluatePokerHand(heldCards, false) == bestPlay;
}

} // namespace quillet
