#include "practice/answer.h"

namespace quillet::practice
{

Answer answerTo(const Decisions& decisions, const odds::DealtHand& hand, odds::Hold held)
{
    const odds::Fraction cost(hand.worth[hand.bestHold] - hand.worth[held],
                              odds::DealtHand::worthUnit);
    const DealtDecision met = decisions.of(hand);
    const bool wild = (met.wild >> held & 1U) != 0;
    return {decisions.idOf(met), cost.value(),
            held == met.rivalHold ? Mistake::rival
            : wild                ? Mistake::wild
                                  : Mistake::other};
}

} // namespace quillet::practice
