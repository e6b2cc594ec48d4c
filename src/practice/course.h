#pragma once

#include "practice/decisions.h"
#include "practice/standard.h"

namespace quillet::practice
{

// All that follows from a pay table. It takes a tenth of a second to make; then it is only read, by
// any thread.
struct Course {
    // The lossless chart plays every deal perfectly with the trainer's pay table.
    Course(const odds::Pays& pays, const charts::Chart& lossless)
        : heldCards(pays), decisions(heldCards), rules(lossless)
    {
    }

    odds::HeldCards heldCards;
    Decisions decisions;
    Standard rules;
};

} // namespace quillet::practice
