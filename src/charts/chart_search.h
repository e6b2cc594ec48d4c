#pragma once

#include "charts/chart_draft.h"
#include "odds/work_progress.h"

#include <vector>

namespace quillet::charts
{

// Searches for the charts that lose least with a given number of lines, assuming that the player
// takes the worst of the holds that fit. The same pay table gives the same charts every time, and
// no chart loses more than one with fewer lines.
class ChartSearch
{
public:
    // Searches for charts of all lengths.
    explicit ChartSearch(const odds::HeldCards& heldCards, const odds::WorkProgress& progress = {});
    ChartSearch(const ChartSearch&) = delete;
    ChartSearch& operator=(const ChartSearch&) = delete;
    ~ChartSearch() = default;

    // The best chart found with at most that many lines, 1..maxRows, "nothing" included.
    [[nodiscard]] const Chart& best(std::size_t lines) const { return m_byLines[lines].chart; }

private:
    struct Found {
        Chart chart;
        ChartDraft::Loss loss = 0;
    };

    [[nodiscard]] static bool gainsNothing(const std::vector<Found>& found, std::size_t size);
    void searchRows(std::size_t rows);
    void searchLines(std::size_t lines);
    void improveFrom(const Chart& chart, const ChartDraft::Limits& limits);
    void improve(const ChartDraft::Limits& limits);
    // Inserts and removes rows of a chart at random.
    void perturb(Chart chart, unsigned seed);
    void keep();

    DealGroups m_groups;
    ChartDraft m_draft;
    // The best so far with at most that many rows or lines.
    std::vector<Found> m_byRows;
    std::vector<Found> m_byLines;
};

} // namespace quillet::charts
