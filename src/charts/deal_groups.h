#pragma once

#include "charts/chart.h"
#include "odds/dealt_hand.h"

#include <cstdint>
#include <vector>

namespace quillet::charts
{

// All deals, in groups that every chart without conditions treats alike: the same kinds of row fit
// them, and these lose in the same order. So the losses of a group can be added up.
class DealGroups
{
public:
    using Loss = std::int64_t; // in worth units

    struct Fit {
        std::uint32_t group;
        Loss loss; // of all deals of the group, each with the worst of the holds that fit
    };

    explicit DealGroups(const odds::HeldCards& heldCards);

    [[nodiscard]] std::size_t count() const { return m_count; }
    // The groups that a kind of row fits.
    [[nodiscard]] const std::vector<Fit>& fits(RowKindId kind) const { return m_fits[kind]; }
    // A chart of all rows without conditions, those first whose holds are worth most on average.
    [[nodiscard]] const Chart& allRows() const { return m_byWorth; }

private:
    std::size_t m_count = 0;
    std::vector<std::vector<Fit>> m_fits; // by kind
    Chart m_byWorth;
};

} // namespace quillet::charts
