#pragma once

#include "odds/held_cards.h"
#include "odds_program/report.h"

#include <iosfwd>

namespace quillet::odds_program
{

// Reads hands, one per line, and prints a block of text or a line of CSV or JSON for each. # starts
// a comment, and empty lines are ignored. Flushes before it waits for input. Throws BadInput with
// the line number at the first line that is not a hand.
void answerHands(std::istream& in, std::ostream& out, const odds::HeldCards& heldCards,
                 bool allHolds, const Style& style);

} // namespace quillet::odds_program
