#include "coach/hold_judgement.h"

#include "engine/hand_evaluation.h"

namespace quillet
{

HoldJudgement judgeHold(const std::array<Card, 5>& hand, const std::array<bool, 5>& holdFlags,
                        std::int16_t bestPlay)
{
    std::array<Card, 5> heldCards;
    for (int place = 0; place < 5; ++place)
        heldCards[static_cast<std::size_t>(place)] = fillerCard(place);
    std::size_t held = 0;
    for (std::size_t slot = 0; slot < hand.size(); ++slot)
        if (holdFlags[slot])
            heldCards[held++] = hand[slot];

    HoldJudgement judgement;
    judgement.cardsHeld = static_cast<int>(held);
    judgement.play = EvaluatePokerHand(heldCards, false);
    judgement.correct =
        CardsToHand(judgement.play) == judgement.cardsHeld && judgement.play == bestPlay;
    return judgement;
}

} // namespace quillet
