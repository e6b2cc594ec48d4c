#include "odds_program/reports.h"

namespace quillet::odds_program
{

namespace
{

using charts::Taken;

Table returnsTable(const odds::Simulation& simulation, const charts::ChartPrice& chart,
                   const odds::Pays& pays)
{
    const std::int64_t played = simulation.perfect.hands();
    Table table{
        "returns",
        std::to_string(played) +
            " hands from decks shuffled as the trainer shuffles them\n\n"
            "Credits returned for every 100 bet, and the 95 % margin: about 95 of 100 such\n"
            "runs land within this margin of the true return\n\n",
        {{"play", "Play"},
         {"hands", ""},
         {"return percent", "Return"},
         {"margin", "+-"},
         {"fair return", "From a fair deck"}}};
    const auto add = [&](std::string_view name, const odds::PlayedHands& hands,
                         const odds::Fraction& fairReturn) {
        table.rows.push_back({name, played, rounded(100 * hands.returned(pays), 4),
                              played < 2 ? "unknown" : rounded(100 * hands.margin(pays), 4),
                              percent(fairReturn, 4)});
    };
    add("Perfect play", simulation.perfect, chart.perfect.returned);
    add(nameOf(Taken::best), simulation.player, chart.played[Taken::best].returned);
    if (played < odds::minMeaningfulHands)
        table.outro =
            "\nFewer than a million hands say little about the return: royals make up about 2 %\n"
            "of it and come once in 40,000 hands, and the margin is computed from the royals\n"
            "that happened to come.\n";
    return table;
}

Table handsTable(const odds::Simulation& simulation, const charts::ChartPrice& chart)
{
    Table table{"final hands",
                "\nHow often each hand came up, and the average with a fair deck\n\n",
                {{"final hand", "Final hand"},
                 {"perfect play", "Perfect play"},
                 {"fair perfect play", "Fair deck"},
                 {"chart", "Chart"},
                 {"fair chart", "Fair deck"}}};
    const auto expected = [&](const odds::Fraction& chance) {
        return rounded(static_cast<double>(simulation.perfect.hands()) * chance.value(), 1);
    };
    for (std::size_t outcome = 1; outcome < odds::outcomeCount; ++outcome)
        table.rows.push_back({odds::outcomeName(outcome), simulation.perfect.count[outcome],
                              expected(chart.perfect.chances[outcome]),
                              simulation.player.count[outcome],
                              expected(chart.played[Taken::best].chances[outcome])});
    return table;
}

} // namespace

Report simulationReport(const odds::Simulation& simulation, const charts::ChartPrice& chart,
                        const odds::Pays& pays)
{
    return {returnsTable(simulation, chart, pays), handsTable(simulation, chart)};
}

} // namespace quillet::odds_program
