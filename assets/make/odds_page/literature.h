#pragma once

#include "odds/fair_odds.h"

#include <iosfwd>

// Writes a table of published figures beside ours. The odds are those of perfect play at the
// trainer's pay table.
void writeLiterature(std::ostream& out, const quillet::odds::HeldCards& heldCards,
                     const quillet::odds::FairOdds& perfect);
