#pragma once

#include "engine/card.h"

#include <array>
#include <cstdint>

namespace quillet
{

struct HoldJudgement {
    int cardsHeld = 0;
    std::int16_t play = 0; // play code of the held cards alone
    bool correct = false;
};

// What a hold amounts to, against the play code that the five cards call for. Any hold of that
// play with as many cards as it keeps is correct, whichever cards they are.
[[nodiscard]] HoldJudgement judgeHold(const std::array<Card, 5>& hand,
                                      const std::array<bool, 5>& holdFlags, std::int16_t bestPlay);

} // namespace quillet
