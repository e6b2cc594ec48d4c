#include "odds/reports.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <future>
#include <limits>
#include <utility>

namespace quillet
{

namespace
{

constexpr std::int64_t endless = std::numeric_limits<std::int64_t>::max();

Rounded percent(double share)
{
    return {100 * share, 4};
}

// How the sittings spread, without the lowest hundredth and the twentieth that royals lift.
std::string barsOf(const Sitting& sitting)
{
    constexpr std::int64_t lines = 16;
    constexpr double widest = 48;
    const std::int64_t low = sitting.quantile(0.01);
    const std::int64_t width = std::max<std::int64_t>(5, (sitting.quantile(0.95) - low) / lines);
    std::vector<double> shares;
    for (std::int64_t line = 0; line < lines; ++line)
        shares.push_back(sitting.chanceOf(low + line * width, low + (line + 1) * width - 1));
    const double most = *std::ranges::max_element(shares);
    std::string text = "\nCredits won or lost, perfect play\n\n";
    for (std::size_t line = 0; line < shares.size(); ++line) {
        const std::string from = std::to_string(low + static_cast<std::int64_t>(line) * width);
        text +=
            std::string(10 - std::min<std::size_t>(from.size(), 10), ' ') + from + " |" +
            std::string(static_cast<std::size_t>(std::lround(shares[line] / most * widest)), '#') +
            " " + decimals(100 * shares[line], 1) + " %\n";
    }
    return text;
}

// Computes the same for perfect play and the chart, side by side.
template <typename Compute>
auto forBoth(const std::array<OneHand, 2>& plays, const Compute& compute,
             const WorkProgress& progress)
{
    auto chart = std::async(std::launch::async, [&] { return compute(plays[1], WorkProgress{}); });
    auto perfect = compute(plays[0], progress);
    return std::array{std::move(perfect), chart.get()};
}

Table tableOf(const char* name, std::string intro, const char* field, const char* heading)
{
    return {name,
            std::move(intro),
            {{field, heading},
             {"perfect play", "Perfect play"},
             {"chart best choice", "Chart, best choice"}},
            {},
            {}};
}

Table netTable(const std::array<Sitting, 2>& sittings, std::int64_t hands)
{
    Table net = tableOf("sitting",
                        "A sitting of " + std::to_string(hands) +
                            " hands, five credits each, from a fairly shuffled deck:\n"
                            "chances in % and credits won or lost, each chance within 1e-9\n\n",
                        "figure", "Figure");
    const auto chance = [&](const char* name, std::int64_t least, std::int64_t most) {
        net.rows.push_back({std::string(name), percent(sittings[0].chanceOf(least, most)),
                            percent(sittings[1].chanceOf(least, most))});
    };
    chance("behind", -endless, -1);
    chance("even", 0, 0);
    chance("ahead", 1, endless);
    for (const int hundredth : {5, 25, 50, 75, 95}) {
        const double share = hundredth / 100.0;
        net.rows.push_back({std::to_string(hundredth) + " % end no higher than",
                            sittings[0].quantile(share), sittings[1].quantile(share)});
    }
    return net;
}

Table onceTable(const std::array<OneHand, 2>& plays, std::int64_t hands)
{
    Table once = tableOf("at least once", "\nThe chance in % of each paying hand at least once\n\n",
                         "final hand", "Final hand");
    for (std::size_t outcome = 1; outcome < outcomes; ++outcome)
        once.rows.push_back({std::string(outcomeName(outcome)),
                             percent(plays[0].chanceOfAtLeastOne(outcome, hands)),
                             percent(plays[1].chanceOfAtLeastOne(outcome, hands))});
    return once;
}

Table ruinTable(const std::array<std::array<double, 10>, 2>& ruined, std::int64_t hands,
                std::int64_t bankroll)
{
    Table ruin = tableOf("bankroll",
                         "\nThe chance in % that " + std::to_string(bankroll) +
                             " credits have run out: fewer than five are left,\n"
                             "too few for another hand\n\n",
                         "after hands", "After hands");
    for (std::size_t tenth = 0; tenth < ruined[0].size(); ++tenth) {
        // The first number of hands that is so many tenths.
        const std::int64_t after = (hands * static_cast<std::int64_t>(tenth + 1) + 9) / 10;
        ruin.rows.push_back({after, percent(ruined[0][tenth]), percent(ruined[1][tenth])});
    }
    return ruin;
}

} // namespace

Report sittingReport(const FairOdds& odds, const Pays& pays, std::int64_t hands,
                     std::optional<std::int64_t> bankroll, bool bars, const WorkProgress& progress)
{
    const std::array<OneHand, 2> plays{oneHand(odds, pays, Strategy::perfect),
                                       oneHand(odds, pays, Strategy::chartBest)};
    const auto sittings = forBoth(
        plays,
        [hands](const OneHand& one, const WorkProgress& report) {
            return Sitting(one, hands, report);
        },
        progress);
    Report report{netTable(sittings, hands), onceTable(plays, hands)};
    if (bars)
        report[0].outro = barsOf(sittings[0]);
    if (bankroll) {
        const auto ruined = forBoth(
            plays,
            [&](const OneHand& one, const WorkProgress& reportWork) {
                return chancesOfRuin(one, hands, *bankroll, reportWork);
            },
            progress);
        report.push_back(ruinTable(ruined, hands, *bankroll));
    }
    return report;
}

} // namespace quillet
