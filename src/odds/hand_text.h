#pragma once

#include "odds/dealt_hand.h"

#include <array>
#include <string>
#include <string_view>

namespace quillet::odds
{

// Reads "9c Tc Jc Kc Ad": ranks A, 2 to 9, T or 10, J, Q, K and suits c, d, h, s in either case or
// as their signs, with or without blanks between the cards; # starts a comment. The places have the
// order of the text. Throws BadInput, which says why.
[[nodiscard]] std::array<DeckPlace, 5> parseHand(std::string_view text);

[[nodiscard]] std::string cardText(DeckPlace place);

// The held cards with blanks between them; "nothing" when none is held.
[[nodiscard]] std::string holdText(const std::array<DeckPlace, 5>& places, Hold hold);

} // namespace quillet::odds
