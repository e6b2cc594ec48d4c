#include "engine/pay_table.h"
#include "odds/ruin.h"
#include "odds/sitting.h"
#include "odds_program/reports.h"

#include <algorithm>
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

// One play of the session.
struct Played {
    const SittingPlay& play;
    odds::Sitting sitting;
    std::optional<odds::Ruin> ruin;
};
using AllPlayed = std::vector<Played>;

Played playOne(const SittingPlay& play, const odds::Pays& pays, const Session& session,
               const odds::WorkProgress& progress)
{
    const odds::Round round = odds::roundOf(play.draws, pays, session.lines, progress);
    Played played{play, {round, session.hands, progress}, {}};
    if (session.bankroll || session.bring)
        played.ruin.emplace(round, session.hands, session.bring ? std::nullopt : session.bankroll,
                            progress);
    return played;
}

// Each play in a thread of its own. Reports the progress of the first.
AllPlayed playAll(const std::vector<SittingPlay>& plays, const odds::Pays& pays,
                  const Session& session, const odds::WorkProgress& progress)
{
    std::vector<std::future<Played>> others;
    for (const SittingPlay& play : std::span(plays).subspan(1))
        others.push_back(
            std::async(std::launch::async, [&] { return playOne(play, pays, session, {}); }));
    AllPlayed all;
    all.push_back(playOne(plays[0], pays, session, progress));
    for (std::future<Played>& other : others)
        all.push_back(other.get());
    return all;
}

Table tableOf(const char* name, std::string intro, Column first, const AllPlayed& all)
{
    Table table{name, std::move(intro), {std::move(first)}};
    for (const Played& played : all)
        table.columns.push_back({played.play.field, played.play.heading});
    return table;
}

template <typename CellOf>
void addRow(Table& table, const Cell& name, const AllPlayed& all, const CellOf& cellOf)
{
    std::vector<Cell>& row = table.rows.emplace_back(1, name);
    for (const Played& played : all)
        row.push_back(cellOf(played));
}

Table netTable(const AllPlayed& all, const Session& session)
{
    const std::string lines =
        session.lines == 1 ? "" : " on " + std::to_string(session.lines) + " lines";
    Table net = tableOf(
        "sitting",
        "A session of " + std::to_string(session.hands) + " hands" + lines +
            ", five credits each:\n"
            "chances in % and credits won or lost with a fair shuffle, chances within 1e-9\n\n",
        {"figure", "Figure"}, all);
    const auto chance = [&](const char* name, std::int64_t least, std::int64_t most) {
        addRow(net, name, all,
               [=](const Played& played) { return percent(played.sitting.chanceOf(least, most)); });
    };
    chance("behind", -endless, -1);
    chance("even", 0, 0);
    chance("ahead", 1, endless);
    for (const int hundredth : {5, 25, 50, 75, 95})
        addRow(net, std::to_string(hundredth) + " % end at or below", all,
               [=](const Played& played) { return played.sitting.quantile(hundredth / 100.0); });
    return net;
}

Table onceTable(const AllPlayed& all, const Session& session)
{
    Table once = tableOf("at least once", "\nThe chance in % of each paying hand at least once\n\n",
                         {"final hand", "Final hand"}, all);
    for (std::size_t outcome = 1; outcome < odds::outcomeCount; ++outcome)
        addRow(once, odds::outcomeName(outcome), all, [&](const Played& played) {
            return percent(
                odds::chanceOfAtLeastOne(played.play.draws, outcome, session.lines, session.hands));
        });
    return once;
}

Table ruinTable(const AllPlayed& all, const Session& session)
{
    Table ruin =
        tableOf("bankroll",
                "\nThe chance in % that " + std::to_string(*session.bankroll) +
                    " credits have run out: fewer than " + std::to_string(session.lines * wager) +
                    "\nare left, too few for another hand\n\n",
                {"after hands", "After hands"}, all);
    std::int64_t before = 0;
    for (std::size_t tenth = 1; tenth <= odds::Ruin::tenths; ++tenth) {
        const std::int64_t after =
            (session.hands * static_cast<std::int64_t>(tenth) + 9) / 10; // rounded up
        if (after == std::exchange(before, after))
            continue;
        addRow(ruin, after, all, [&](const Played& played) {
            return percent(played.ruin->chance(*session.bankroll, tenth));
        });
    }
    return ruin;
}

Table bringTable(const AllPlayed& all, double maxChance)
{
    Table bring = tableOf("bring",
                          "\nThe smallest bankroll in credits that runs out in such a session with "
                          "a chance\nof at most " +
                              decimals(100 * maxChance, 4) + " %, and that chance in %\n\n",
                          {"figure", "Figure"}, all);
    addRow(bring, "credits to bring", all,
           [=](const Played& played) { return played.ruin->bankrollFor(maxChance); });
    addRow(bring, "their chance of ruin", all, [=](const Played& played) {
        return percent(played.ruin->chance(played.ruin->bankrollFor(maxChance)));
    });
    return bring;
}

} // namespace

Report sittingReport(const std::vector<SittingPlay>& plays, const odds::Pays& pays,
                     const Session& session, bool bars, const odds::WorkProgress& progress)
{
    const AllPlayed all = playAll(plays, pays, session, progress);
    Report report{netTable(all, session), onceTable(all, session)};
    if (bars)
        report[0].outro = barsOf(all[0].sitting);
    if (session.bankroll)
        report.push_back(ruinTable(all, session));
    if (session.bring)
        report.push_back(bringTable(all, *session.bring));
    return report;
}

} // namespace quillet::odds_program
