#pragma once

#include "odds/held_cards.h"
#include "odds_program/report.h"

#include <iosfwd>

namespace quillet::odds_program
{

// Reads hands, one per line, and prints a block of text or a line of CSV or JSON for each. # starts
// a comment, and empty lines are ignored. Flushes the output before waiting for input. At the first
// line that is not a hand, throws BadInput with the line number.
void answerHands(std::istream& in, std::ostream& out, const odds::HeldCards& heldCards,
                 bool allHolds, const Style& style);

} // namespace quillet::odds_program
