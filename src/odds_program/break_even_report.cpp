#include "odds/hand_text.h"
#include "odds_program/reports.h"

#include <cmath>
#include <limits>

namespace quillet::odds_program
{

Report breakEvenReport(const std::optional<odds::BreakEven>& perfect,
                       const charts::ChartPrice& chart, const odds::Pays& pays)
{
    Table table{"break-even",
                "The royal in credits at which play returns 100 %. Perfect play changes with the\n"
                "royal, the other ways to play do not.\n\n",
                {{"play", "Play"},
                 {"royal", "Royal"},
                 {"rounded up", "Rounded up"},
                 {"one royal in", "One royal in"}}};
    const auto add = [&table](std::string_view play, const std::optional<odds::BreakEven>& even) {
        if (!even)
            return table.rows.push_back({play, "none", "", ""});
        const odds::Fraction& royal = even->royal;
        const odds::Int128 up = (royal.numerator() + royal.denominator() - 1) / royal.denominator();
        table.rows.push_back({play, exact(royal, 8), static_cast<std::int64_t>(up),
                              exact({even->chance.denominator(), even->chance.numerator()}, 2)});
    };
    add("Perfect play", perfect);
    add("Perfect play at " + std::to_string(pays[odds::royalOutcome]),
        odds::breakEven(chart.perfect, pays));
    add(nameOf(charts::Taken::best), odds::breakEven(chart.played[charts::Taken::best], pays));
    if (!perfect)
        table.outro = "\nPerfect play returns more than 100 % even without a royal.\n";
    return {table};
}

Report bestHoldsReport(const std::array<odds::DeckPlace, 5>& places,
                       const std::vector<odds::BestHold>& best, const odds::Pays& pays)
{
    const odds::Fraction now(pays[odds::royalOutcome], 1);
    const std::string pay = std::to_string(pays[odds::royalOutcome]);
    Table table{"best holds",
                odds::holdText(places, odds::holdAll) +
                    ": the best hold by what a royal pays, in credits\n\n",
                {{"hold", "Best hold"}, {"from", "From"}, {"to", "To"}, {"is", "Is"}},
                {},
                "\nNo other hold is ever better.\n"};
    double nearest = std::numeric_limits<double>::infinity();
    for (std::size_t i = 0; i < best.size(); ++i) {
        const auto& [from, hold] = best[i];
        const bool last = i + 1 == best.size();
        const bool isNow = !(now < from) && (last || !(best[i + 1].royal < now));
        table.rows.push_back({cards(places, hold), exact(from, 4),
                              last ? "any" : exact(best[i + 1].royal, 4),
                              isNow ? "best at " + pay : ""});
        const double distance = std::abs((from - now).value());
        if (i == 0 || distance >= nearest)
            continue;
        nearest = distance;
        table.outro =
            "\n" + wrapped("Nearest to " + pay + ", the best hold changes at " + from.decimals(4) +
                           ": up to there it is " + odds::holdText(places, best[i - 1].hold) +
                           ", beyond it " + odds::holdText(places, hold) + ".");
    }
    return {table};
}

} // namespace quillet::odds_program
