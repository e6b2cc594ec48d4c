#pragma once

#include "engine/card.h"

#include <array>
#include <cstdint>

namespace quillet
{

// Whether the held cards alone have the play code bestPlay, and are as many as that play keeps.
// They need not be the cards that gave the hand this code.
[[nodiscard]] bool isCorrectHold(const std::array<Card, 5>& hand,
                                 const std::array<bool, 5>& holdFlags, std::int16_t bestPlay);

} // namespace quillet
