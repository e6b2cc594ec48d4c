#pragma once

#include "engine/card.h"

#include <cstdint>
#include <span>
#include <string_view>

namespace quillet
{

// The number of rows of the strategy chart. Play codes run from 1 to it.
inline constexpr std::int16_t playCodeCount = 21;

// The play code: the number of the first row of the chart that the five cards contain. A final
// hand is classed by what it pays. The cards may come in any order; cards not held are fillers.
// Only ranks and suits are read; ranks lie in 0..300.
[[nodiscard]] std::int16_t EvaluatePokerHand(std::span<const Card, 5> cards, bool finalHand);

// The number of cards that the play keeps; 0 also for an unknown code.
[[nodiscard]] std::int16_t CardsToHand(std::int16_t playCode);

// The play's name, which is a row in chart files; empty for an unknown code.
[[nodiscard]] std::string_view playName(std::int16_t playCode);

// The filler for slot 0..4, where no card is held.
[[nodiscard]] constexpr Card fillerCard(int slot)
{
    return {-1, static_cast<std::int16_t>(99 + 2 * slot),
            static_cast<std::int16_t>(152 + 3 * slot)};
}

} // namespace quillet
