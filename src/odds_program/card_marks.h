#pragma once

#include "odds/suit_classes.h"

#include <string>

namespace quillet::odds_program
{

struct Box {
    double x;
    double y;
    double width;
    double height;
};

// A small card for SVG: its rank beside its suit. Cards to throw away are pale.
[[nodiscard]] std::string drawnCard(odds::DeckPlace place, bool kept, const Box& box);

// The definitions of all ranks and suits.
[[nodiscard]] std::string cardMarkDefinitions();

} // namespace quillet::odds_program
