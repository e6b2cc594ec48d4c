#pragma once

#include "charts/hold_facts.h"

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace quillet::charts
{

// A category of holds, in the order in which they are tested; the last is for all other cards.
using PlainKind = std::uint8_t;
inline constexpr std::size_t plainKinds = 24;
inline constexpr PlainKind otherCards = plainKinds - 1;

[[nodiscard]] PlainKind plainKindOf(const HoldFacts& held);

// "low pair", as in charts; "other cards" for the last.
[[nodiscard]] std::string_view plainKindName(PlainKind kind);

} // namespace quillet::charts
