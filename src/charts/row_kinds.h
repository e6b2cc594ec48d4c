#pragma once

#include "charts/discard_kinds.h"

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace quillet::charts
{

// One row that a chart can have: which cards to keep.
struct RowKind {
    std::string name; // in charts
    int cards;        // that it keeps
    int minHigh;      // high cards among them
    bool (*matches)(const HoldFacts& held);
    std::string meaning; // one sentence
    DiscardSet discards; // conditions on the discards that the row always has

    [[nodiscard]] bool fits(const HoldFacts& held) const
    {
        return held.cards == cards && held.high >= minHigh && matches(held);
    }
};

// The index of a kind in rowKinds().
using RowKindId = std::size_t;

// Every row that a chart can have, in the order of --rows. The last one keeps nothing and fits
// every deal.
[[nodiscard]] std::span<const RowKind> rowKinds();

// The row that keeps nothing.
[[nodiscard]] RowKindId nothingRow();

[[nodiscard]] std::optional<RowKindId> findRowKind(std::string_view name);

} // namespace quillet::charts
