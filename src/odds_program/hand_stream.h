#pragma once

#include "odds_program/report.h"
#include "odds_program/text_input.h"

#include <iosfwd>

namespace quillet::odds_program
{

// Answers hands that come one a line: a block of text, or a line of comma-separated values or JSON
// for each. What follows # is a comment, and empty lines are left out. Throws BadInput, with the
// line's number, at the first that is no hand.
void answerHands(TextInput& in, std::ostream& out, const odds::HeldCards& heldCards, bool allHolds,
                 const Style& style);

} // namespace quillet::odds_program
