#pragma once

#include "odds/held_cards.h"

namespace quillet::test
{

// With the trainer's pay table.
inline const odds::HeldCards& heldCards()
{
    static const odds::HeldCards theHeldCards;
    return theHeldCards;
}

} // namespace quillet::test
