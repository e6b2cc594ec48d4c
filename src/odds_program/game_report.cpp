#include "engine/hand_evaluation.h"
#include "engine/pay_table.h"
#include "odds/hand_text.h"
#include "odds_program/reports.h"

#include <cmath>

namespace quillet::odds_program
{

namespace
{

constexpr std::array<std::string_view, odds::strategies> strategyNames{
    "Perfect play", "Chart, best choice", "Chart, any choice", "Chart, worst choice"};

std::string rowName(std::size_t row)
{
    return std::string(playName(static_cast<std::int16_t>(row + 1)));
}

Exact percent(const odds::Fraction& share)
{
    return {share, 5, true};
}

Table returns(const odds::FairOdds& odds)
{
    Table table{"returns",
                "Credits returned for every 100 bet, for a fairly shuffled deck\n\n",
                {{"play", "Play"}, {"return", "Return"}},
                {},
                {}};
    for (std::size_t i = 0; i < odds::strategies; ++i)
        table.rows.push_back({std::string(strategyNames[i]), Exact{odds.returned[i], 8, true}});
    table.outro =
        "\nOf the " + std::to_string(odds::FairOdds::deals) +
        " deals the coach accepts several holds for " + std::to_string(odds.dealsWithAChoice) +
        ". The\nchart's best choice is perfect for " + std::to_string(odds.dealsPlayedPerfectly) +
        " deals (" +
        odds::Fraction(odds::Int128{odds.dealsPlayedPerfectly} * 100, odds::FairOdds::deals)
            .decimals(2) +
        " %).\n";
    return table;
}

Table hands(const odds::FairOdds& odds, const odds::Pays& pays)
{
    Table table{"hands",
                "\nWhat one hand does, in wagers of five credits: its variance and standard\n"
                "deviation; what a hundred hands cost in credits; and how many hands it takes\n"
                "for the edge to outweigh luck (1.96 standard deviations)\n\n",
                {{"play", "Play"},
                 {"variance", "Variance"},
                 {"deviation", "Deviation"},
                 {"cost of 100 hands", "100 hands cost"},
                 {"edge shows after", "Edge shows after"}},
                {},
                {}};
    for (std::size_t i = 0; i < odds::strategies; ++i) {
        const odds::OneHand one = odds::oneHand(odds, pays, static_cast<odds::Strategy>(i));
        const auto shows = one.handsUntilTheEdgeShows();
        table.rows.push_back({std::string(strategyNames[i]), Rounded{one.variance(), 4},
                              Rounded{std::sqrt(one.variance()), 4},
                              Exact{(odds::Fraction(1, 1) - odds.returned[i]) * 500, 4},
                              shows ? Cell(Rounded{*shows, 0}) : Cell(std::string("never"))});
    }
    return table;
}

Table rows(const odds::FairOdds& odds)
{
    Table table{"rows",
                "\nWhat each row of the chart loses of 100 credits over all deals, and the deal\n"
                "for which its best choice costs most credits\n\n",
                {{"number", "No."},
                 {"row", "Row"},
                 {"deals", "Deals"},
                 {"loss of best choice", "Best"},
                 {"loss of any choice", ""},
                 {"loss of worst choice", "Worst"},
                 {"costliest deal", "Costliest", true},
                 {"costs", "Costs"}},
                {},
                {}};
    for (std::size_t i = 0; i < odds.rows.size(); ++i) {
        const odds::RowOdds& row = odds.rows[i];
        const bool costs = row.costliest != odds::Fraction();
        table.rows.push_back({static_cast<std::int64_t>(i + 1), rowName(i), row.deals,
                              percent(row.loss[1]), percent(row.loss[2]), percent(row.loss[3]),
                              costs ? Cell(Cards{row.example, odds::holdAll}) : Cell(std::string()),
                              costs ? Cell(Exact{row.costliest, 4}) : Cell(std::string())});
    }
    return table;
}

Table finalHands(const odds::FairOdds& odds, const odds::Pays& pays, odds::Strategy strategy)
{
    const auto index = static_cast<std::size_t>(strategy);
    Table table{strategy == odds::Strategy::perfect ? "perfect play" : "chart best choice",
                "\nFinal hands: " + std::string(strategyNames[index]) + "\n\n",
                {{"final hand", "Final hand"},
                 {"pays", "Pays"},
                 {"chance", "Chance in %"},
                 {"one in", "One in"}},
                {},
                {}};
    for (std::size_t i = 0; i < odds::outcomes; ++i) {
        const std::size_t outcome = (i + 1) % odds::outcomes;
        const odds::Fraction& chance = odds.chanceOf(strategy, outcome);
        const bool comes = chance != odds::Fraction();
        table.rows.push_back({std::string(odds::outcomeName(outcome)), pays[outcome],
                              Exact{chance, 8, true},
                              comes ? Cell(Exact{{chance.denominator(), chance.numerator()}, 2})
                                    : Cell(std::string("never"))});
    }
    return table;
}

} // namespace

Report gameReport(const odds::FairOdds& odds, const odds::Pays& pays)
{
    return {returns(odds), hands(odds, pays), rows(odds),
            finalHands(odds, pays, odds::Strategy::perfect),
            finalHands(odds, pays, odds::Strategy::chartBest)};
}

} // namespace quillet::odds_program
