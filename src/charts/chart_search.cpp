#include "charts/chart_search.h"

#include "charts/chart_player.h"

#include <algorithm>
#include <cassert>
#include <functional>
#include <limits>

namespace quillet::charts
{

namespace
{

// How often a finished chart is disturbed to see whether it settles lower.
constexpr int kicks = 60;

// Long charts change little by a single removal, so they are improved only now and then.
constexpr std::size_t shortEnoughToImprove = 60;

} // namespace

ChartSearch::ChartSearch(const odds::HeldCards& heldCards)
{
    findFits(heldCards);
}

void ChartSearch::findFits(const odds::HeldCards& heldCards)
{
    const auto kinds = rowKinds();
    const auto kindsThatFit = [&kinds](const HoldFacts& held) {
        std::vector<RowKindId> fitting;
        for (RowKindId kind = 0; kind < kinds.size(); ++kind) {
            if (kinds[kind].fits(held))
                fitting.push_back(kind);
        }
        return fitting;
    };
    std::vector<std::vector<RowKindId>> kindsOfClass;
    for (const HoldFacts& held : factsByClass())
        kindsOfClass.push_back(kindsThatFit(held));

    m_fits.resize(kinds.size());
    std::vector<double> credits(kinds.size());
    std::vector<double> members(kinds.size());
    odds::forEachClass(5, [&](const odds::SuitSets& sets) {
        const odds::DealtHand hand(heldCards, odds::placesOf<5>(sets));
        const std::int64_t size = odds::classSize(sets);
        const auto deal = static_cast<std::uint32_t>(m_deals++);
        const auto enter = [&](RowKindId kind, odds::Hold hold) {
            if (!allows({kind}, hand, hold))
                return;
            const Loss loss = (hand.worth[hand.bestHold] - hand.worth[hold]) * size;
            credits[kind] += static_cast<double>(hand.worth[hold] * size);
            members[kind] += static_cast<double>(size);
            std::vector<Fit>& fits = m_fits[kind];
            if (fits.empty() || fits.back().deal != deal)
                fits.push_back({deal, loss});
            fits.back().loss = std::max(fits.back().loss, loss);
        };
        for (odds::Hold hold = 0; hold < odds::holdAll; ++hold) {
            for (const RowKindId kind : kindsOfClass[hand.classOfHold[hold]])
                enter(kind, hold);
        }
        for (const RowKindId kind : kindsThatFit(factsOf(hand, odds::holdAll)))
            enter(kind, odds::holdAll);
    });
    for (std::size_t kind = 0; kind < kinds.size(); ++kind)
        m_worth.push_back(credits[kind] / std::max(members[kind], 1.0));
}

Chart ChartSearch::best(std::size_t rows, const Progress& progress)
{
    assert(rows >= 1 && rows <= mostRows);
    // Every row there is, the dearest holds first, plays nearly perfectly. What is needed least is
    // taken out until few enough are left.
    Chart all;
    for (RowKindId kind = 0; kind < nothingRow(); ++kind)
        all.push_back({kind});
    std::ranges::stable_sort(all, std::greater(),
                             [this](const Row& row) { return m_worth[row.kind]; });
    all.push_back({nothingRow()});
    stand(all);
    shrinkTo(rows);

    Chart best = m_chart;
    Loss least = m_loss;
    std::mt19937 chance; // from its usual seed: the same kicks every time
    for (int kick = 1; kick <= kicks; ++kick) {
        this->kick(chance);
        while (m_chart.size() < rows)
            apply(bestInsertion());
        improve();
        shrinkTo(rows);
        if (m_loss < least) {
            best = m_chart;
            least = m_loss;
        } else {
            stand(best);
        }
        if (progress)
            progress(static_cast<double>(kick) / kicks);
    }
    // Rows that bring nothing are no help to a player.
    stand(best);
    while (m_chart.size() > 1 && bestRemoval().gain >= 0)
        apply(bestRemoval());
    return m_chart;
}

void ChartSearch::kick(std::mt19937& chance)
{
    constexpr unsigned mostRowsPutIn = 4;
    for (unsigned left = 1 + chance() % mostRowsPutIn; left > 0; --left) {
        const RowKindId kind = chance() % nothingRow();
        if (std::ranges::find(m_chart, kind, &Row::kind) == m_chart.end())
            apply(bestInsertionOf(kind));
        if (chance() % 2 == 0 && m_chart.size() > 1) {
            const std::size_t out = chance() % (m_chart.size() - 1);
            apply({out, Change::none, 0, gainsOfRemoval()[out]});
        }
    }
}

bool ChartSearch::cannotBeImproved(const Chart& chart)
{
    stand(chart);
    return bestReplacement().gain <= 0 && (chart.size() == 1 || bestRemoval().gain < 0);
}

void ChartSearch::stand(const Chart& chart)
{
    constexpr std::uint8_t nobody = 255;
    m_chart = chart;
    m_standing.assign(m_deals, {nobody, nobody, 0, 0});
    for (std::size_t row = 0; row < chart.size(); ++row) {
        for (const Fit& fit : m_fits[chart[row].kind]) {
            Standing& deal = m_standing[fit.deal];
            if (deal.first == nobody) {
                deal.first = static_cast<std::uint8_t>(row);
                deal.firstLoss = fit.loss;
            } else if (deal.second == nobody) {
                deal.second = static_cast<std::uint8_t>(row);
                deal.secondLoss = fit.loss;
            }
        }
    }
    m_loss = 0;
    for (Standing& deal : m_standing) {
        if (deal.second == nobody)
            deal.second = deal.first;
        m_loss += deal.firstLoss;
    }
}

std::vector<ChartSearch::Loss> ChartSearch::gainsOfRemoval() const
{
    std::vector<Loss> gains(m_chart.size());
    for (const Standing& deal : m_standing)
        gains[deal.first] += deal.firstLoss - deal.secondLoss;
    return gains;
}

ChartSearch::Change ChartSearch::bestRemoval() const
{
    const std::vector<Loss> gains = gainsOfRemoval();
    const auto best = std::max_element(gains.begin(), gains.end() - 1);
    return {static_cast<std::size_t>(best - gains.begin()), Change::none, 0, *best};
}

// The last row stays, and a kind stands in a chart once.
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
        gains[m_standing[fit.deal].first] += m_standing[fit.deal].firstLoss - fit.loss;
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
struct ChartSearch::Offer {
    Offer(const std::vector<Fit>& fits, const std::vector<Standing>& standing, std::size_t rows)
        : fromFirst(rows), fromSecond(rows * rows)
    {
        for (const Fit& fit : fits) {
            const Standing& deal = standing[fit.deal];
            fromFirst[deal.first] += deal.firstLoss - fit.loss;
            fromSecond[deal.first * rows + deal.second] += deal.secondLoss - fit.loss;
        }
    }

    std::vector<Loss> fromFirst;  // by the row that plays them
    std::vector<Loss> fromSecond; // by that row and the next, once that row is gone
};

ChartSearch::Change ChartSearch::bestReplacement() const
{
    const std::size_t rows = m_chart.size();
    const std::vector<Loss> removal = gainsOfRemoval();
    Change best{Change::none, Change::none, 0, std::numeric_limits<Loss>::min()};
    for (RowKindId kind = 0; kind < nothingRow(); ++kind) {
        const auto standsAt = static_cast<std::size_t>(
            std::ranges::find(m_chart, kind, &Row::kind) - m_chart.begin());
        const Offer offer(m_fits[kind], m_standing, rows);
        for (std::size_t out = 0; out + 1 < rows; ++out) {
            if (standsAt < rows && standsAt != out)
                continue;
            Loss gain = removal[out];
            for (std::size_t before = rows; before-- > 0;) {
                if (before != out)
                    gain += offer.fromFirst[before];
                gain += before > out ? offer.fromSecond[out * rows + before] : 0;
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
    stand(chart);
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
