#include "charts/plain_kinds.h"

#include "charts/row_kinds.h"

#include <algorithm>
#include <array>

namespace quillet::charts
{

namespace
{

constexpr std::array<std::string_view, plainKinds> names{"royal",
                                                         "straight flush",
                                                         "4 of a kind",
                                                         "full house",
                                                         "flush",
                                                         "straight",
                                                         "3 of a kind",
                                                         "2 pair",
                                                         "4 to a royal",
                                                         "4 to a straight flush",
                                                         "high pair",
                                                         "3 to a royal",
                                                         "4 to a flush",
                                                         "low pair",
                                                         "4 to an outside straight",
                                                         "4 to an inside straight",
                                                         "3 to a straight flush",
                                                         "4 high",
                                                         "3 high",
                                                         "2 high",
                                                         "10 and face, suited",
                                                         "1 high",
                                                         "nothing",
                                                         "other cards"};

std::array<const RowKind*, otherCards> rowsOfKinds()
{
    std::array<const RowKind*, otherCards> rows{};
    for (std::size_t kind = 0; kind < rows.size(); ++kind)
        rows[kind] = &rowKinds()[*findRowKind(names[kind])];
    return rows;
}

} // namespace

PlainKind plainKindOf(const HoldFacts& held)
{
    static const auto rows = rowsOfKinds();
    const auto fits = [&held](const RowKind* row) { return row->fits(held); };
    return static_cast<PlainKind>(std::ranges::find_if(rows, fits) - rows.begin());
}

std::string_view plainKindName(PlainKind kind)
{
    return names[kind];
}

} // namespace quillet::charts
