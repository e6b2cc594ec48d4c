#pragma once

#include "charts/chart.h"
#include "charts/deal_groups.h"

#include <cstdint>
#include <vector>

namespace quillet::charts
{

// A chart that is being improved: what it loses if the player takes the worst of the holds that
// fit, and what changes would gain. Neighbouring rows share a line when that loses nothing.
class ChartDraft
{
public:
    using Loss = DealGroups::Loss;
    static constexpr std::size_t none = static_cast<std::size_t>(-1);

    struct Limits {
        std::size_t rows = maxRows;
        std::size_t lines = none;
    };

    // The groups must outlive it.
    explicit ChartDraft(const DealGroups& groups) : m_groups(groups) {}

    void set(const Chart& chart);

    [[nodiscard]] const Chart& chart() const { return m_chart; }
    [[nodiscard]] std::size_t lines() const { return lineCount(m_chart); }
    [[nodiscard]] Loss loss() const { return m_loss; }

    // Makes the change that gains most, within the limits, until none gains.
    void improve(const Limits& limits);
    // Removes the least useful rows until the limits are met.
    void shrinkTo(const Limits& limits);
    // Removes rows as long as the chart loses no more without them.
    void removeIdleRows();

private:
    // One row comes in, one goes out, or both. Positions are those before the change.
    struct Change {
        std::size_t out = none; // position
        RowKindId in = none;    // kind
        std::size_t before = 0; // position that it is inserted before
        Loss gain = 0;          // by how much the loss falls
    };

    // The row that plays a group of deals, and the runner-up that would if that row were removed.
    struct Decision {
        std::uint8_t first = 0;
        std::uint8_t second = 0;
        Loss firstLoss = 0;
        Loss secondLoss = 0;
    };
    struct Gains;

    [[nodiscard]] bool isAlone(std::size_t position) const;
    void apply(const Change& change);
    [[nodiscard]] Change bestRemoval() const;
    [[nodiscard]] Change bestChange(const Limits& limits) const;
    void findBest(const Gains& gains, const Limits& limits, Change change, Change& best) const;
    [[nodiscard]] bool keepsLines(const Gains& gains, const Change& change,
                                  std::size_t maxLines) const;

    const DealGroups& m_groups;
    Chart m_chart;
    std::vector<Loss> m_removal; // by row, what its removal would gain
    std::vector<Decision> m_decisions;
    Loss m_loss = 0;
};

} // namespace quillet::charts
