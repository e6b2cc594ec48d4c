#pragma once

#include "charts/hold_facts.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

namespace quillet::charts
{

// What the cards that are thrown away show beside those that are kept.
struct DiscardFacts {
    DiscardFacts(std::span<const Card> kept, std::span<const Card> thrown);

    RankSet ranks = 0;
    bool pair = false;       // two or more of one rank
    bool highsAbove = false; // every ace or face is higher than all that are kept
    int flushCards = 0;      // of the suit of the kept cards, when these are of one
    int straightCards = 0;   // ranks that lie in a straight with the kept cards
};

// What a row can ask about the cards thrown away.
struct DiscardKind {
    std::string_view name;    // as it stands in a chart, behind the row
    std::string_view meaning; // one sentence
    bool (*fits)(const DiscardFacts& thrown);
};

// Bit k is set for the kind that is the k-th of all.
using DiscardSet = std::uint32_t;

// That of the hand's aces and faces the lowest are kept: "no lower high".
inline constexpr DiscardSet noLowerHigh = 1U << 21;

// All that can be asked, in the order in which it is told to players.
[[nodiscard]] std::span<const DiscardKind> discardKinds();

[[nodiscard]] std::optional<std::size_t> findDiscardKind(std::string_view name);

// Whether the cards thrown away are as all of these ask.
[[nodiscard]] bool fitAll(DiscardSet asked, const DiscardFacts& thrown);

} // namespace quillet::charts
