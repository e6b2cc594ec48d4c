#pragma once

#include "charts/hold_facts.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

namespace quillet::charts
{

// What a row can ask of the discards, given the kept cards.
struct DiscardFacts {
    DiscardFacts(std::span<const Card> kept, std::span<const Card> thrown);

    RankSet ranks = 0;
    bool pair = false;       // two or more of one rank
    bool highsAbove = false; // every ace or face is higher than all that are kept
    int flushCards = 0;      // of the suit of the kept cards, when these are of one
    int straightCards = 0;   // ranks that lie in a straight with the kept cards
};

// A condition that a row can put on the discards.
struct DiscardKind {
    std::string_view name;    // in charts, after the row
    std::string_view meaning; // one sentence
    bool (*fits)(const DiscardFacts& thrown);
};

// Bit k is the k-th of discardKinds().
using DiscardSet = std::uint32_t;

// The cards thrown away are of different ranks: "no pair".
inline constexpr DiscardSet noPair = 1U << 20;

// The kept aces and faces are the lowest of the hand: "no lower high".
inline constexpr DiscardSet noLowerHigh = 1U << 21;

// All conditions, in the order of --rows.
[[nodiscard]] std::span<const DiscardKind> discardKinds();

[[nodiscard]] std::optional<std::size_t> findDiscardKind(std::string_view name);

// Whether the discards meet all of these conditions.
[[nodiscard]] bool fitAll(DiscardSet asked, const DiscardFacts& thrown);

} // namespace quillet::charts
