#include "charts/chart_draft.h"

#include <algorithm>
#include <bitset>
#include <cassert>
#include <utility>

namespace quillet::charts
{

namespace
{

constexpr std::size_t maxDraftRows = 128;
constexpr std::uint8_t noRow = 255;

} // namespace

// What the chart would gain if a kind of row played the groups that it fits.
struct ChartDraft::Gains {
    struct Sum {
        Loss gain = 0;
        bool loses = false; // in one of the groups
    };

    Gains(const std::vector<DealGroups::Fit>& fits, const std::vector<Decision>& decisions,
          std::size_t rows)
        : fromFirst(rows), fromSecond(rows * rows)
    {
        const auto add = [](Sum& sum, Loss gain) {
            sum.gain += gain;
            sum.loses = sum.loses || gain < 0;
        };
        for (const DealGroups::Fit& fit : fits) {
            const Decision& group = decisions[fit.group];
            add(fromFirst[group.first], group.firstLoss - fit.loss);
            add(fromSecond[group.first * rows + group.second], group.secondLoss - fit.loss);
        }
    }

    // Over the groups that this row plays when another one is removed.
    [[nodiscard]] Sum from(std::size_t row, std::size_t removed) const
    {
        if (removed == none)
            return fromFirst[row];
        const Sum left = row == removed ? Sum() : fromFirst[row];
        const Sum second = row > removed ? fromSecond[removed * fromFirst.size() + row] : Sum();
        return {left.gain + second.gain, left.loses || second.loses};
    }

    std::vector<Sum> fromFirst;  // by the row that plays them now
    std::vector<Sum> fromSecond; // by that row and the runner-up
};

void ChartDraft::set(const Chart& chart)
{
    assert(chart.size() <= maxDraftRows && chart.back().kind == nothingRow());
    m_chart = chart;
    m_decisions.assign(m_groups.count(), {noRow, noRow, 0, 0});
    // The later rows that would lose more than a row in a group that it plays.
    std::vector<std::bitset<maxDraftRows>> worse(chart.size());
    for (std::size_t row = 0; row < chart.size(); ++row) {
        for (const DealGroups::Fit& fit : m_groups.fits(chart[row].kind)) {
            Decision& group = m_decisions[fit.group];
            if (group.first == noRow) {
                group.first = static_cast<std::uint8_t>(row);
                group.firstLoss = fit.loss;
                continue;
            }
            if (fit.loss > group.firstLoss)
                worse[group.first].set(row);
            if (group.second == noRow) {
                group.second = static_cast<std::uint8_t>(row);
                group.secondLoss = fit.loss;
            }
        }
    }
    m_loss = 0;
    m_removal.assign(chart.size(), 0);
    for (Decision& group : m_decisions) {
        if (group.second == noRow)
            group.second = group.first;
        m_loss += group.firstLoss;
        m_removal[group.first] += group.firstLoss - group.secondLoss;
    }
    std::bitset<maxDraftRows> apart; // rows that cannot share the line
    for (std::size_t row = 0; row < chart.size(); ++row) {
        m_chart[row].sharesLine = row > 0 && !apart[row];
        apart = m_chart[row].sharesLine ? apart | worse[row] : worse[row];
    }
}

bool ChartDraft::isAlone(std::size_t position) const
{
    return !m_chart[position].sharesLine &&
           (position + 1 == m_chart.size() || !m_chart[position + 1].sharesLine);
}

// The last row stays.
ChartDraft::Change ChartDraft::bestRemoval() const
{
    const auto best = std::max_element(m_removal.begin(), m_removal.end() - 1);
    return {static_cast<std::size_t>(best - m_removal.begin()), none, 0, *best};
}

ChartDraft::Change ChartDraft::bestChange(const Limits& limits) const
{
    Change best;
    for (RowKindId kind = 0; kind < nothingRow(); ++kind) {
        const Gains gains(m_groups.fits(kind), m_decisions, m_chart.size());
        const auto position = static_cast<std::size_t>(
            std::ranges::find(m_chart, kind, &Row::kind) - m_chart.begin());
        if (position < m_chart.size()) { // no kind appears twice
            findBest(gains, limits, {position, kind, 0, m_removal[position]}, best);
            continue;
        }
        if (m_chart.size() < limits.rows)
            findBest(gains, limits, {none, kind}, best);
        for (std::size_t out = 0; out + 1 < m_chart.size(); ++out)
            findBest(gains, limits, {out, kind, 0, m_removal[out]}, best);
    }
    return best;
}

// Tries all positions for the row that comes in. The change has the gain of the row that goes out.
void ChartDraft::findBest(const Gains& gains, const Limits& limits, Change change,
                          Change& best) const
{
    for (change.before = m_chart.size(); change.before-- > 0;) {
        change.gain += gains.from(change.before, change.out).gain;
        if (change.gain > best.gain && keepsLines(gains, change, limits.lines))
            best = change;
    }
}

// Whether the change leaves at most that many lines. False in some cases that are hard to decide.
bool ChartDraft::keepsLines(const Gains& gains, const Change& change, std::size_t maxLines) const
{
    if (maxLines == none)
        return true;
    if (m_chart[change.before].sharesLine)
        return false;
    if (lines() - (change.out != none && isAlone(change.out) ? 1 : 0) < maxLines)
        return true;
    // The row joins the line above if it loses in no group that this line plays.
    for (std::size_t row = change.before; row-- > 0;) {
        if (row != change.out && gains.from(row, change.out).loses)
            return false;
        if (!m_chart[row].sharesLine)
            return true;
    }
    return false;
}

void ChartDraft::apply(const Change& change)
{
    Chart chart = m_chart;
    std::size_t before = change.before;
    if (change.out != none) {
        chart.erase(chart.begin() + static_cast<std::ptrdiff_t>(change.out));
        before -= before > change.out ? 1 : 0;
    }
    if (change.in != none)
        chart.insert(chart.begin() + static_cast<std::ptrdiff_t>(before), {change.in});
    [[maybe_unused]] const Loss was = m_loss;
    set(chart);
    assert(was - m_loss == change.gain);
}

void ChartDraft::improve(const Limits& limits)
{
    for (Change change = bestChange(limits); change.gain > 0; change = bestChange(limits)) {
        const Chart before = m_chart;
        apply(change);
        if (lines() > limits.lines)
            return set(before);
    }
}

void ChartDraft::shrinkTo(const Limits& limits)
{
    while (m_chart.size() > limits.rows || lines() > limits.lines)
        apply(bestRemoval());
}

void ChartDraft::removeIdleRows()
{
    while (m_chart.size() > 1) {
        const Change removal = bestRemoval();
        if (removal.gain < 0)
            return;
        apply(removal);
    }
}

} // namespace quillet::charts
