#include "odds/bankroll.h"
#include "odds/sitting.h"
#include "odds_program/reports.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <future>
#include <limits>
#include <span>
#include <utility>
#include <vector>

namespace quillet::odds_program
{

namespace
{

constexpr std::int64_t endless = std::numeric_limits<std::int64_t>::max();

Cell percent(double share)
{
    return rounded(100 * share, 4);
}

// The distribution of results as bars, without the lowest 1 % and the highest 5 %, which royals
// spread far.
std::string barsOf(const odds::Sitting& sitting)
{
    constexpr std::int64_t maxBars = 16;
    constexpr double widest = 44;
    const std::int64_t low = sitting.quantile(0.01);
    const std::int64_t results = (sitting.quantile(0.95) - low) / sitting.unit() + 1;
    const std::int64_t width = (results + maxBars - 1) / maxBars * sitting.unit();
    std::string text = "\nCredits won or lost, perfect play\n\n";
    struct Bar {
        std::string label;
        double share;
    };
    std::vector<Bar> bars;
    std::int64_t from = low;
    for (; from <= sitting.quantile(0.95); from += width) {
        const std::int64_t to = from + width - sitting.unit();
        bars.push_back({std::to_string(from) + (to == from ? "" : " to " + std::to_string(to)),
                        sitting.chanceOf(from, to)});
    }
    const double most = std::ranges::max(bars, {}, &Bar::share).share;
    for (const Bar& bar : bars)
        text += std::string(20 - std::min<std::size_t>(bar.label.size(), 20), ' ') + bar.label +
                " |" +
                std::string(static_cast<std::size_t>(std::lround(bar.share / most * widest)), '#') +
                " " + decimals(100 * bar.share, 1) + " %\n";
    return text + "\nNot shown: " + decimals(100 * sitting.chanceOf(-endless, low - 1), 1) +
           " % below and " + decimals(100 * sitting.chanceOf(from, endless), 1) + " % above.\n";
}

// Computes the same for each play, in as many threads. Reports the progress of the first.
template <typename Compute>
auto forEachPlay(const std::vector<SittingPlay>& plays, const Compute& compute,
                 const odds::WorkProgress& progress)
{
    using Result = decltype(compute(plays[0].hand, progress));
    std::vector<std::future<Result>> others;
    for (const SittingPlay& play : std::span(plays).subspan(1))
        others.push_back(std::async(std::launch::async, [&compute, &play] {
            return compute(play.hand, odds::WorkProgress{});
        }));
    std::vector<Result> results;
    results.push_back(compute(plays[0].hand, progress));
    for (std::future<Result>& other : others)
        results.push_back(other.get());
    return results;
}

Table tableOf(const char* name, std::string intro, Column first,
              const std::vector<SittingPlay>& plays)
{
    Table table{name, std::move(intro), {std::move(first)}};
    for (const SittingPlay& play : plays)
        table.columns.push_back({play.field, play.heading});
    return table;
}

// Adds a row with a cell for each play.
template <typename Of, typename CellOf>
void addRow(Table& table, const Cell& name, const std::vector<Of>& plays, const CellOf& cellOf)
{
    std::vector<Cell> row{name};
    for (const Of& play : plays)
        row.push_back(cellOf(play));
    table.rows.push_back(std::move(row));
}

Table netTable(const std::vector<SittingPlay>& plays, const std::vector<odds::Sitting>& sittings,
               std::int64_t hands)
{
    Table net = tableOf("sitting",
                        "A session of " + std::to_string(hands) +
                            " hands, five credits each, from a fairly shuffled deck:\n"
                            "chances in % and credits won or lost, each chance within 1e-9\n\n",
                        {"figure", "Figure"}, plays);
    const auto chance = [&](const char* name, std::int64_t least, std::int64_t most) {
        addRow(net, name, sittings, [&](const odds::Sitting& sitting) {
            return percent(sitting.chanceOf(least, most));
        });
    };
    chance("behind", -endless, -1);
    chance("even", 0, 0);
    chance("ahead", 1, endless);
    for (const int hundredth : {5, 25, 50, 75, 95})
        addRow(net, std::to_string(hundredth) + " % end at or below", sittings,
               [&](const odds::Sitting& sitting) { return sitting.quantile(hundredth / 100.0); });
    return net;
}

Table onceTable(const std::vector<SittingPlay>& plays, std::int64_t hands)
{
    Table once = tableOf("at least once", "\nThe chance in % of each paying hand at least once\n\n",
                         {"final hand", "Final hand"}, plays);
    for (std::size_t outcome = 1; outcome < odds::outcomeCount; ++outcome)
        addRow(once, odds::outcomeName(outcome), plays, [&](const SittingPlay& play) {
            return percent(play.hand.chanceOfAtLeastOne(outcome, hands));
        });
    return once;
}

Table ruinTable(const std::vector<SittingPlay>& plays,
                const std::vector<std::array<double, 10>>& ruined, std::int64_t hands,
                std::int64_t bankroll)
{
    Table ruin = tableOf("bankroll",
                         "\nThe chance in % that " + std::to_string(bankroll) +
                             " credits have run out: fewer than five are left,\n"
                             "too few for another hand\n\n",
                         {"after hands", "After hands"}, plays);
    for (std::size_t tenth = 0; tenth < ruined[0].size(); ++tenth) {
        const std::int64_t after =
            (hands * static_cast<std::int64_t>(tenth + 1) + 9) / 10; // rounded up
        addRow(ruin, after, ruined,
               [tenth](const std::array<double, 10>& chances) { return percent(chances[tenth]); });
    }
    return ruin;
}

} // namespace

Report sittingReport(const std::vector<SittingPlay>& plays, std::int64_t hands,
                     std::optional<std::int64_t> bankroll, bool bars,
                     const odds::WorkProgress& progress)
{
    const auto sittings = forEachPlay(
        plays,
        [hands](const odds::OneHand& one, const odds::WorkProgress& report) {
            return odds::Sitting(one, hands, report);
        },
        progress);
    Report report{netTable(plays, sittings, hands), onceTable(plays, hands)};
    if (bars)
        report[0].outro = barsOf(sittings[0]);
    if (bankroll) {
        const auto ruined = forEachPlay(
            plays,
            [&](const odds::OneHand& one, const odds::WorkProgress& reportWork) {
                return odds::chancesOfRuin(one, hands, *bankroll, reportWork);
            },
            progress);
        report.push_back(ruinTable(plays, ruined, hands, *bankroll));
    }
    return report;
}

} // namespace quillet::odds_program
