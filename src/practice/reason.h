#pragma once

#include "odds/dealt_hand.h"

#include <string>

namespace quillet::practice
{

// One sentence on why two holds differ, by the final hands that they lead to. Its figures add up:
// "4 to a straight flush is worth 12.34 credits, 3 to a royal 6.57: straight flushes bring 5.31
// more, flushes 4.14 more and straights 0.85 more, royals 3.70 less and other hands 0.83 less."
[[nodiscard]] std::string reason(const odds::HeldCards& heldCards, const odds::DealtHand& hand,
                                 odds::Hold better, odds::Hold worse);

} // namespace quillet::practice
