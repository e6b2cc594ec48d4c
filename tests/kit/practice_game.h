#pragma once

#include "charts/chart_player.h"
#include "practice/decisions.h"

namespace quillet::practice::test
{

// The game that the tests of practice share, because computing it takes a moment.
struct Game {
    odds::HeldCards heldCards;
    Decisions decisions{heldCards};
};

inline const Game& game()
{
    static const Game theGame;
    return theGame;
}

inline const Decisions& decisions()
{
    return game().decisions;
}

} // namespace quillet::practice::test
