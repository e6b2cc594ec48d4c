#pragma once

#include "odds/held_cards.h"

namespace quillet::test
{

// Of the trainer's pay table.
inline const HeldCards& heldCards()
{
    static const HeldCards theHeldCards;
    return theHeldCards;
}

} // namespace quillet::test
