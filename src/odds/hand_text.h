#pragma once

#include "odds/dealt_hand.h"

#include <array>
#include <stdexcept>
#include <string>
#include <string_view>

namespace quillet
{

// A text that is not five different cards; what() says why.
class BadHand : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

// Reads "9c Tc Jc Kc Ad": ranks A, 2 to 9, T or 10, J, Q, K and suits c, d, h, s in either case or
// as their signs, with or without blanks between the cards. The places come in the order of the
// text.
[[nodiscard]] std::array<DeckPlace, 5> parseHand(std::string_view text);

[[nodiscard]] std::string cardText(DeckPlace place);

// The held cards with blanks between them; "nothing" when none is held.
[[nodiscard]] std::string holdText(const std::array<DeckPlace, 5>& places, Hold hold);

} // namespace quillet
