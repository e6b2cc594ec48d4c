#pragma once

#include <array>
#include <cstddef>

namespace quillet
{

// A place for a card on the table, 0..4 from left to right.
using Slot = std::size_t;

inline constexpr std::array<Slot, 5> allSlots{0, 1, 2, 3, 4};

} // namespace quillet
