#pragma once

#include "practice/answer.h"

#include <span>

namespace quillet::practice
{

// What the player's own play returns, in credits won per credit paid, and what it loses against
// perfect play.
struct Estimate {
    double returned = 0;
    double low = 0; // the return lies between these two with a chance of 95 %
    double high = 0;
    double closeLoss = 0; // in close decisions
    double slipLoss = 0;  // in all others
};

// The same answers give the same estimate. All of them weigh the same, so give those that are to
// show how the player plays now: the last 1,000 are enough.
[[nodiscard]] Estimate estimateReturn(const Decisions& decisions, std::span<const Answer> answers);

} // namespace quillet::practice
