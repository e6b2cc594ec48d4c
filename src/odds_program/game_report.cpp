#include "engine/pay_table.h"
#include "odds/hand_text.h"
#include "odds/round.h"
#include "odds_program/reports.h"

#include <cmath>

namespace quillet::odds_program
{

namespace
{

using charts::ChartPrice;
using charts::Taken;

struct Strategy {
    std::string_view name;
    const odds::FairOdds& odds;
};
using Strategies = std::array<Strategy, 4>;

Strategies strategiesOf(const ChartPrice& chart)
{
    return {{{"Perfect play", chart.perfect},
             {nameOf(Taken::best), chart.played[Taken::best]},
             {nameOf(Taken::any), chart.played[Taken::any]},
             {nameOf(Taken::worst), chart.played[Taken::worst]}}};
}

Table returns(const ChartPrice& chart)
{
    Table table = returnsTable(chart);
    table.outro =
        "\nOf the " + std::to_string(odds::FairOdds::deals) +
        " deals the coach accepts several holds for " + std::to_string(chart.dealsWithAChoice) +
        ". The\nchart's best choice is perfect for " + std::to_string(chart.dealsPlayedPerfectly) +
        " deals (" +
        odds::Fraction(odds::Int128{chart.dealsPlayedPerfectly} * 100, odds::FairOdds::deals)
            .decimals(2) +
        " %).\n";
    return table;
}

Table hands(const Strategies& strategies, const odds::Pays& pays)
{
    Table table{
        "hands",
        "\nOne hand, in wagers of five credits: its variance and standard deviation; what a\n"
        "hundred hands cost in credits; and how many hands it takes for the edge to\n"
        "outweigh luck (1.96 standard deviations)\n\n",
        {{"play", "Play"},
         {"variance", "Variance"},
         {"deviation", "Deviation"},
         {"cost of 100 hands", "100 hands cost"},
         {"edge shows after", "Edge shows after"}}};
    for (const Strategy& strategy : strategies) {
        const odds::Round one = odds::roundOf(strategy.odds.chances, pays);
        const auto shows = one.untilTheEdgeShows();
        table.rows.push_back(
            {strategy.name, rounded(one.variance(), 4), rounded(std::sqrt(one.variance()), 4),
             exact((odds::Fraction(1, 1) - strategy.odds.returned) * (odds::Int128{100} * wager),
                   4),
             shows ? rounded(*shows, 0) : "never"});
    }
    return table;
}

Table rows(const ChartPrice& chart)
{
    Table table{"rows",
                "\nThe loss of each row of the chart per 100 credits over all deals, and the deal\n"
                "for which its best choice costs the most credits\n\n",
                {{"number", "No."},
                 {"row", "Row"},
                 {"deals", "Deals"},
                 {"loss of best choice", "Best"},
                 {"loss of any choice", ""},
                 {"loss of worst choice", "Worst"},
                 {"costliest deal", "Costliest"},
                 {"costs", "Cost"}}};
    for (std::size_t i = 0; i < chart.rows.size(); ++i) {
        const charts::RowPrice& row = chart.rows[i];
        const charts::CostliestDeal& costliest = row.costliest[Taken::best];
        const bool costs = costliest.cost != odds::Fraction();
        table.rows.push_back(
            {static_cast<std::int64_t>(i + 1), charts::rowText(charts::trainersChart()[i]),
             row.deals, percent(row.loss[Taken::best], 5), percent(row.loss[Taken::any], 5),
             percent(row.loss[Taken::worst], 5), costs ? closeCards(costliest.places) : "",
             costs ? exact(costliest.cost, 2) : ""});
    }
    return table;
}

Table finalHands(const char* name, const Strategy& strategy, const odds::Pays& pays)
{
    Table table{name,
                "\nFinal hands: " + std::string(strategy.name) + "\n\n",
                {{"final hand", "Final hand"},
                 {"pays", "Pays"},
                 {"chance", "Chance in %"},
                 {"one in", "One in"}}};
    for (std::size_t i = 0; i < odds::outcomeCount; ++i) {
        const std::size_t outcome = (i + 1) % odds::outcomeCount;
        const odds::Fraction& chance = strategy.odds.chances[outcome];
        const bool comes = chance != odds::Fraction();
        table.rows.push_back(
            {odds::outcomeName(outcome), pays[outcome], percent(chance, 8),
             comes ? exact({chance.denominator(), chance.numerator()}, 2) : "never"});
    }
    return table;
}

} // namespace

Report gameReport(const ChartPrice& chart, const odds::Pays& pays)
{
    const Strategies strategies = strategiesOf(chart);
    return {returns(chart), hands(strategies, pays), rows(chart),
            finalHands("perfect play", strategies[0], pays),
            finalHands("chart best choice", strategies[1], pays)};
}

} // namespace quillet::odds_program
