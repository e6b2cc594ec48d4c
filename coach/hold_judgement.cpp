#include "coach/hold_judgement.h"

#include "engine/hand_evaluation.h"

namespace quillet
{

namespace
{

// Five cards that neither pair, run nor suit with anything; they stand for the cards not held.
std::array<Card, 5> fillerCards()
{
    std::array<Card, 5> cards;
    for (std::int16_t place = 0; place < 5; ++place)
        cards[static_cast<std::size_t>(place)] = {-1, static_cast<std::int16_t>(99 + 2 * place),
                                                  static_cast<std::int16_t>(152 + 3 * place)};
    return cards;
}

} // namespace

HoldJudgement judgeHold(const std::array<Card, 5>& hand, const std::array<bool, 5>& holdFlags,
                        std::int16_t bestPlay)
{
    std::array<Card, 5> heldCards = fillerCards();
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
