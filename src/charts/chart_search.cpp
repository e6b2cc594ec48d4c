#include "charts/chart_search.h"

#include <algorithm>
#include <random>

namespace quillet::charts
{

namespace
{

// How often the best chart of each length is changed at random to see whether it then improves
// further.
constexpr unsigned attempts = 14;
// A changed chart may first have this many lines more.
constexpr std::size_t spareLines = 4;

} // namespace

ChartSearch::ChartSearch(const odds::HeldCards& heldCards, const odds::WorkProgress& progress)
    : m_groups(heldCards), m_draft(m_groups), m_byRows(maxRows + 2), m_byLines(maxRows + 2)
{
    // A chart of all rows plays nearly perfectly. The least useful rows are removed one by one.
    m_draft.set(m_groups.allRows());
    for (std::size_t rows = maxRows; rows > 0; --rows) {
        m_draft.shrinkTo({rows});
        improve({rows});
    }
    for (std::size_t rows = 2; rows <= maxRows; ++rows)
        searchRows(rows);
    for (std::size_t lines = 2; lines <= maxRows; ++lines) {
        searchLines(lines);
        if (progress)
            progress(static_cast<double>(lines) / maxRows);
    }
}

// Whether shorter charts have long been as good as the best.
bool ChartSearch::gainsNothing(const std::vector<Found>& found, std::size_t size)
{
    constexpr std::size_t patience = 4;
    return size > patience && found[size - patience].loss == found.back().loss;
}

void ChartSearch::searchRows(std::size_t rows)
{
    if (gainsNothing(m_byRows, rows))
        return;
    for (const std::size_t from : {rows - 1, rows + 1})
        improveFrom(m_byRows[from].chart, {rows});
}

void ChartSearch::searchLines(std::size_t lines)
{
    if (gainsNothing(m_byLines, lines))
        return;
    const ChartDraft::Limits limits{maxRows, lines};
    for (const std::size_t from : {lines - 1, lines, lines + 1})
        improveFrom(m_byLines[from].chart, limits);
    for (unsigned attempt = 0; attempt < attempts; ++attempt) {
        perturb(m_byLines[lines].chart, 100 * static_cast<unsigned>(lines) + attempt);
        improve({maxRows, lines + spareLines});
        improveFrom(m_draft.chart(), limits);
    }
}

void ChartSearch::improveFrom(const Chart& chart, const ChartDraft::Limits& limits)
{
    m_draft.set(chart);
    m_draft.shrinkTo(limits);
    improve(limits);
    if (limits.lines == ChartDraft::none)
        improve({maxRows, m_draft.lines()});
}

void ChartSearch::improve(const ChartDraft::Limits& limits)
{
    m_draft.improve(limits);
    m_draft.removeIdleRows();
    keep();
}

void ChartSearch::perturb(Chart chart, unsigned seed)
{
    constexpr unsigned maxChanges = 4;
    std::mt19937 random(seed); // the same changes every time
    for (unsigned left = 1 + random() % maxChanges; left > 0; --left) {
        const RowKindId kind = random() % nothingRow();
        const auto place = static_cast<std::ptrdiff_t>(random() % chart.size());
        if (std::ranges::find(chart, kind, &Row::kind) == chart.end() && chart.size() < maxRows)
            chart.insert(chart.begin() + place, {kind});
        else if (chart.size() > 1)
            chart.erase(chart.begin() + static_cast<std::ptrdiff_t>(random() % (chart.size() - 1)));
    }
    m_draft.set(chart);
}

void ChartSearch::keep()
{
    const auto keepIn = [this](std::vector<Found>& found, std::size_t size) {
        for (; size < found.size(); ++size) {
            Found& best = found[size];
            const std::size_t rows = m_draft.chart().size();
            if (best.chart.empty() || m_draft.loss() < best.loss ||
                (m_draft.loss() == best.loss && rows < best.chart.size()))
                best = {m_draft.chart(), m_draft.loss()};
        }
    };
    keepIn(m_byRows, m_draft.chart().size());
    keepIn(m_byLines, m_draft.lines());
}

} // namespace quillet::charts
