#include "charts/chart_search.h"

#include "charts/chart_player.h"
#include "odds/fair_odds.h"

#include <algorithm>
#include <cassert>
#include <functional>
#include <limits>

namespace quillet::charts
{

namespace
{

// How often the best chart is changed at random to see whether it then improves further.
constexpr int attempts = 60;

// Removing one row of a longer chart changes too little to look for improvements each time.
constexpr std::size_t shortEnoughToImprove = 60;

std::vector<RowKindId> kindsThatFit(const HoldFacts& held)
{
    std::vector<RowKindId> fitting;
    for (RowKindId kind = 0; kind < rowKinds().size(); ++kind) {
        if (rowKinds()[kind].fits(held))
            fitting.push_back(kind);
    }
    return fitting;
}

} // namespace

ChartSearch::ChartSearch(const odds::HeldCards& heldCards) : m_fits(rowKinds().size())
{
    findFits(heldCards);
}

void ChartSearch::findFits(const odds::HeldCards& heldCards)
{
    std::vector<std::vector<RowKindId>> kindsOfClass;
    for (const HoldFacts& held : factsByClass())
        kindsOfClass.push_back(kindsThatFit(held));
    std::vector<Average> worth(rowKinds().size());
    odds::forEachDeal(heldCards, [&](const odds::DealtHand& hand, int members) {
        for (odds::Hold hold = 0; hold < odds::holdAll; ++hold) {
            for (const RowKindId kind : kindsOfClass[hand.classOfHold[hold]])
                addFit(kind, hand, hold, members, worth[kind]);
        }
        for (const RowKindId kind : kindsThatFit(factsOf(hand, odds::holdAll)))
            addFit(kind, hand, odds::holdAll, members, worth[kind]);
        ++m_deals;
    });
    for (const Average& average : worth)
        m_worth.push_back(average.sum / std::max(average.weight, 1.0));
}

void ChartSearch::addFit(RowKindId kind, const odds::DealtHand& hand, odds::Hold hold, int members,
                         Average& worth)
{
    if (!allows({kind}, hand, hold))
        return;
    worth.sum += static_cast<double>(hand.worth[hold] * members);
    worth.weight += members;
    const auto deal = static_cast<std::uint32_t>(m_deals);
    const Loss loss = (hand.worth[hand.bestHold] - hand.worth[hold]) * members;
    std::vector<Fit>& fits = m_fits[kind];
    if (fits.empty() || fits.back().deal != deal)
        fits.push_back({deal, loss});
    fits.back().loss = std::max(fits.back().loss, loss);
}

Chart ChartSearch::best(std::size_t rows, const Progress& progress)
{
    assert(rows >= 1 && rows <= maxRows);
    // A chart of all rows, sorted by the worth of their holds, plays nearly perfectly. The least
    // useful rows are removed until few enough remain.
    Chart all;
    for (RowKindId kind = 0; kind < nothingRow(); ++kind)
        all.push_back({kind});
    std::ranges::stable_sort(all, std::greater(),
                             [this](const Row& row) { return m_worth[row.kind]; });
    all.push_back({nothingRow()});
    setChart(all);
    shrinkTo(rows);

    Chart best = m_chart;
    Loss least = m_loss;
    std::mt19937 random; // default seed: the same changes every time
    for (int attempt = 1; attempt <= attempts; ++attempt) {
        perturb(random);
        while (m_chart.size() < rows)
            apply(bestInsertion());
        improve();
        shrinkTo(rows);
        if (m_loss < least) {
            best = m_chart;
            least = m_loss;
        } else {
            setChart(best);
        }
        if (progress)
            progress(static_cast<double>(attempt) / attempts);
    }
    // Rows without a gain only make the chart longer.
    setChart(best);
    while (m_chart.size() > 1 && bestRemoval().gain >= 0)
        apply(bestRemoval());
    return m_chart;
}

void ChartSearch::perturb(std::mt19937& random)
{
    constexpr unsigned maxInsertions = 4;
    for (unsigned left = 1 + random() % maxInsertions; left > 0; --left) {
        const RowKindId kind = random() % nothingRow();
        if (std::ranges::find(m_chart, kind, &Row::kind) == m_chart.end())
            apply(bestInsertionOf(kind));
        if (random() % 2 == 0 && m_chart.size() > 1) {
            const std::size_t out = random() % (m_chart.size() - 1);
            apply({out, Change::none, 0, gainsOfRemoval()[out]});
        }
    }
}

void ChartSearch::setChart(const Chart& chart)
{
    constexpr std::uint8_t noRow = 255;
    m_chart = chart;
    m_decisions.assign(m_deals, {noRow, noRow, 0, 0});
    for (std::size_t row = 0; row < chart.size(); ++row) {
        for (const Fit& fit : m_fits[chart[row].kind]) {
            Decision& deal = m_decisions[fit.deal];
            if (deal.first == noRow) {
                deal.first = static_cast<std::uint8_t>(row);
                deal.firstLoss = fit.loss;
            } else if (deal.second == noRow) {
                deal.second = static_cast<std::uint8_t>(row);
                deal.secondLoss = fit.loss;
            }
        }
    }
    m_loss = 0;
    for (Decision& deal : m_decisions) {
        if (deal.second == noRow)
            deal.second = deal.first;
        m_loss += deal.firstLoss;
    }
}

std::vector<ChartSearch::Loss> ChartSearch::gainsOfRemoval() const
{
    std::vector<Loss> gains(m_chart.size());
    for (const Decision& deal : m_decisions)
        gains[deal.first] += deal.firstLoss - deal.secondLoss;
    return gains;
}

ChartSearch::Change ChartSearch::bestRemoval() const
{
    const std::vector<Loss> gains = gainsOfRemoval();
    const auto best = std::max_element(gains.begin(), gains.end() - 1);
    return {static_cast<std::size_t>(best - gains.begin()), Change::none, 0, *best};
}

// The last row stays last, and no kind appears twice.
ChartSearch::Change ChartSearch::bestInsertion() const
{
    Change best{Change::none, Change::none, 0, std::numeric_limits<Loss>::min()};
    for (RowKindId kind = 0; kind < nothingRow(); ++kind) {
        if (std::ranges::find(m_chart, kind, &Row::kind) != m_chart.end())
            continue;
        const Change change = bestInsertionOf(kind);
        if (change.gain > best.gain)
            best = change;
    }
    return best;
}

ChartSearch::Change ChartSearch::bestInsertionOf(RowKindId kind) const
{
    std::vector<Loss> gains(m_chart.size());
    for (const Fit& fit : m_fits[kind])
        gains[m_decisions[fit.deal].first] += m_decisions[fit.deal].firstLoss - fit.loss;
    Change best{Change::none, kind, 0, std::numeric_limits<Loss>::min()};
    Loss gain = 0;
    for (std::size_t before = m_chart.size(); before-- > 0;) {
        gain += gains[before];
        if (gain > best.gain) {
            best.before = before;
            best.gain = gain;
        }
    }
    return best;
}

// What the chart would gain if a kind of row played the deals that it fits.
struct ChartSearch::Gains {
    Gains(const std::vector<Fit>& fits, const std::vector<Decision>& decisions, std::size_t rows)
        : fromFirst(rows), fromSecond(rows * rows)
    {
        for (const Fit& fit : fits) {
            const Decision& deal = decisions[fit.deal];
            fromFirst[deal.first] += deal.firstLoss - fit.loss;
            fromSecond[deal.first * rows + deal.second] += deal.secondLoss - fit.loss;
        }
    }

    std::vector<Loss> fromFirst;  // by the row that plays them now
    std::vector<Loss> fromSecond; // by that row and the runner-up, if that row is removed
};

ChartSearch::Change ChartSearch::bestReplacement() const
{
    const std::size_t rows = m_chart.size();
    const std::vector<Loss> removal = gainsOfRemoval();
    Change best{Change::none, Change::none, 0, std::numeric_limits<Loss>::min()};
    for (RowKindId kind = 0; kind < nothingRow(); ++kind) {
        const auto position = static_cast<std::size_t>(
            std::ranges::find(m_chart, kind, &Row::kind) - m_chart.begin());
        const Gains gains(m_fits[kind], m_decisions, rows);
        for (std::size_t out = 0; out + 1 < rows; ++out) {
            if (position < rows && position != out)
                continue;
            Loss gain = removal[out];
            for (std::size_t before = rows; before-- > 0;) {
                if (before != out)
                    gain += gains.fromFirst[before];
                gain += before > out ? gains.fromSecond[out * rows + before] : 0;
                if (gain > best.gain)
                    best = {out, kind, before, gain};
            }
        }
    }
    return best;
}

void ChartSearch::apply(const Change& change)
{
    Chart chart = m_chart;
    std::size_t before = change.before;
    if (change.out != Change::none) {
        chart.erase(chart.begin() + static_cast<std::ptrdiff_t>(change.out));
        before -= before > change.out ? 1 : 0;
    }
    if (change.in != Change::none)
        chart.insert(chart.begin() + static_cast<std::ptrdiff_t>(before), {change.in});
    [[maybe_unused]] const Loss was = m_loss;
    setChart(chart);
    assert(was - m_loss == change.gain);
}

void ChartSearch::improve()
{
    for (Change change = bestReplacement(); change.gain > 0; change = bestReplacement())
        apply(change);
}

void ChartSearch::shrinkTo(std::size_t rows)
{
    while (m_chart.size() > rows) {
        apply(bestRemoval());
        if (m_chart.size() < shortEnoughToImprove || m_chart.size() == rows)
            improve();
    }
}

} // namespace quillet::charts
