#include "odds/reports.h"

#include <algorithm>
#include <cmath>
#include <limits>

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

} // namespace

Report sittingReport(const FairOdds& odds, const Pays& pays, std::int64_t hands,
                     std::optional<std::int64_t> bankroll, bool bars)
{
    const OneHand perfectHand = oneHand(odds, pays, Strategy::perfect);
    const OneHand chartHand = oneHand(odds, pays, Strategy::chartBest);
    const Sitting perfect(perfectHand, hands);
    const Sitting chart(chartHand, hands);

    Table net{"sitting",
              "A sitting of " + std::to_string(hands) +
                  " hands, five credits each, from a fairly shuffled deck:\n"
                  "chances in % and credits won or lost, each chance within 1e-9\n\n",
              {{"figure", "Figure"},
               {"perfect play", "Perfect play"},
               {"chart best choice", "Chart, best choice"}},
              {},
              bars ? barsOf(perfect) : ""};
    const auto chance = [&](const char* name, std::int64_t least, std::int64_t most) {
        net.rows.push_back({std::string(name), percent(perfect.chanceOf(least, most)),
                            percent(chart.chanceOf(least, most))});
    };
    chance("behind", -endless, -1);
    chance("even", 0, 0);
    chance("ahead", 1, endless);
    for (const int hundredth : {5, 25, 50, 75, 95}) {
        const double share = hundredth / 100.0;
        net.rows.push_back({std::to_string(hundredth) + " % end no higher than",
                            perfect.quantile(share), chart.quantile(share)});
    }

    Table once{"at least once",
               "\nThe chance in % of each paying hand at least once\n\n",
               {{"final hand", "Final hand"},
                {"perfect play", "Perfect play"},
                {"chart best choice", "Chart, best choice"}},
               {},
               {}};
    for (std::size_t outcome = 1; outcome < outcomes; ++outcome)
        once.rows.push_back({std::string(outcomeName(outcome)),
                             percent(perfectHand.chanceOfAtLeastOne(outcome, hands)),
                             percent(chartHand.chanceOfAtLeastOne(outcome, hands))});
    Report report{net, once};
    if (bankroll) {
        Table ruin{"bankroll",
                   "\nThe chance in % that " + std::to_string(*bankroll) +
                       " credits have been lost on the way\n\n",
                   {{"after hands", "After hands"},
                    {"perfect play", "Perfect play"},
                    {"chart best choice", "Chart, best choice"}},
                   {},
                   {}};
        const auto perfectly = chancesOfRuin(perfectHand, hands, *bankroll);
        const auto byChart = chancesOfRuin(chartHand, hands, *bankroll);
        for (std::size_t tenth = 0; tenth < perfectly.size(); ++tenth) {
            // The first number of hands that is so many tenths.
            const std::int64_t after = (hands * static_cast<std::int64_t>(tenth + 1) + 9) / 10;
            ruin.rows.push_back({after, percent(perfectly[tenth]), percent(byChart[tenth])});
        }
        report.push_back(ruin);
    }
    return report;
}

} // namespace quillet
