#pragma once

#include "practice/decisions.h"

namespace quillet::practice
{

// What is expected of a player before any answer. Where it comes from:
// - Players learn from charts, so some share of them errs where the trainer's chart does, and in
//   just as many deals of the decision; that is known exactly.
// - That chart has no mistake in any decision with a lead of 1 to 4 credits, nor in any of the
//   twenty in which most is at stake (probability times lead): 3.3 % of all deals are misplayed,
//   but no decision costs more than 0.003 credits a hand. So other mistakes are thought rarer the
//   larger the lead, and the expected cost of a decision has a bound, whatever is at stake in it.
// - Rare decisions are played badly by some however large the lead: the best chart of 12 rows keeps
//   a dealt flush where a draw to a royal is worth three times as much.

// The share of the decision's deals that the player gets wrong, for the choice of questions.
[[nodiscard]] double expectedErrorRate(const Decision& decision);

// The chance that the player does not know the decision and errs in some share of its deals, for
// the estimate of the return. It is larger than the error rate alone suggests, so that the interval
// allows for rare and costly mistakes that no question has come to yet.
[[nodiscard]] double chanceOfMistakes(const Decision& decision);

} // namespace quillet::practice
