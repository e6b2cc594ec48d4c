#pragma once

#include "odds/report.h"

#include <iosfwd>

namespace quillet
{

// Answers hands that come one a line: a block of text, or a line of comma-separated values or JSON
// for each. Lines that are empty or begin with # are left out. Throws BadHand, with the line's
// number, at the first that is no hand.
void answerHands(std::istream& in, std::ostream& out, const HeldCards& heldCards, bool allHolds,
                 const Style& style);

} // namespace quillet
