#pragma once

#include "charts/discard_kinds.h"

#include <cstddef>
#include <optional>
#include <span>
#include <string_view>

namespace quillet::charts
{

// One row that a chart can have: which cards it tells the player to keep.
struct RowKind {
    std::string_view name; // as it stands in a chart
    int cards;             // that it keeps
    bool (*matches)(const HoldFacts& held);
    std::string_view meaning; // one sentence
    DiscardSet discards = 0;  // conditions on the discards that the row always has

    [[nodiscard]] bool fits(const HoldFacts& held) const
    {
        return held.cards == cards && matches(held);
    }
};

// Where a kind stands in the list of all kinds.
using RowKindId = std::size_t;

// Every row that a chart can have, in the order in which they are told to players. The last one
// keeps nothing and fits every deal.
[[nodiscard]] std::span<const RowKind> rowKinds();

// The row that keeps nothing.
[[nodiscard]] RowKindId nothingRow();

[[nodiscard]] std::optional<RowKindId> findRowKind(std::string_view name);

} // namespace quillet::charts
