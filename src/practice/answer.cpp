#include "practice/answer.h"

namespace quillet::practice
{

Answer answerTo(const Decisions& decisions, const odds::DealtHand& hand, odds::Hold held)
{
    const odds::Fraction cost(hand.worth[hand.bestHold] - hand.worth[held],
                              odds::DealtHand::worthUnit);
    const DealtDecision met = decisions.of(hand);
    return {decisions.idOf(met), cost.value(), (met.wild >> held & 1U) != 0};
}

} // namespace quillet::practice
