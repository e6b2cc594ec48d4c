#include "odds_program/document.h"

#include "charts/chart_price.h"
#include "charts/chart_search.h"
#include "odds/hand_text.h"
#include "odds_program/reports.h"

#include <limits>
#include <ostream>

namespace quillet::odds_program
{

namespace
{

constexpr std::array<std::string_view, 6> payTables{"9/6", "9/5", "8/6", "8/5", "7/5", "6/5"};
constexpr std::size_t royal = 1; // outcome
constexpr std::int64_t endless = std::numeric_limits<std::int64_t>::max();

std::string percent(const odds::Fraction& share, int places)
{
    return (share * 100).decimals(places);
}

void writePayTables(std::ostream& out)
{
    out << "## Pay tables\n\n"
           "What comes back of 100 credits paid when five are paid for each hand and a royal pays\n"
           "4000, the variance of one hand of perfect play in wagers squared, and what the\n"
           "trainer's chart loses against perfect play with the best of the holds that the coach\n"
           "accepts. The chart is made for 9/6.\n\n"
           "| full house/flush | perfect play | variance | the chart | it loses |\n"
           "|---|---|---|---|---|\n";
    for (const std::string_view name : payTables) {
        const odds::Pays pays = odds::parsePays(name);
        const odds::FairOdds odds = odds::fairOdds(odds::HeldCards(pays));
        const odds::Fraction& perfect = odds.returnOf(odds::Strategy::perfect);
        const odds::Fraction& chart = odds.returnOf(odds::Strategy::chartBest);
        out << "| " << name << " | " << percent(perfect, 6) << " | "
            << decimals(odds::oneHand(odds, pays, odds::Strategy::perfect).variance(), 4) << " | "
            << percent(chart, 6) << " | " << percent(perfect - chart, 6) << " |\n";
    }
}

void writeTrainersTable(std::ostream& out, const odds::FairOdds& odds)
{
    out << "\n## The trainer's pay table\n\n"
           "| hand | pays | chance in %, perfect play | one in | by the chart | one in |\n"
           "|---|---|---|---|---|---|\n";
    const odds::Pays pays = odds::trainersPays();
    for (std::size_t i = 0; i < odds::outcomes; ++i) {
        const std::size_t outcome = (i + 1) % odds::outcomes;
        out << "| " << odds::outcomeName(outcome) << " | " << pays[outcome];
        for (const odds::Strategy strategy : {odds::Strategy::perfect, odds::Strategy::chartBest}) {
            const odds::Fraction& chance = odds.chanceOf(strategy, outcome);
            out << " | " << percent(chance, 6) << " | "
                << odds::Fraction(chance.denominator(), chance.numerator()).decimals(2);
        }
        out << " |\n";
    }
}

void writeMistakes(std::ostream& out, const odds::HeldCards& heldCards)
{
    out << "\n## What the trainer's chart plays wrongly\n\n"
           "Deals in which the best hold that the coach accepts is not the perfect one, and what\n"
           "they cost of 100 credits over all deals.\n\n"
           "| the chart's row | perfect play holds | deals | cost | dearest deal | it costs |\n"
           "|---|---|---|---|---|---|\n";
    for (const charts::Mistake& mistake : charts::mistakesOf(heldCards, charts::trainersChart()))
        out << "| " << mistake.row << " | " << mistake.instead << " | " << mistake.deals << " | "
            << percent(mistake.cost, 6) << " | " << odds::holdText(mistake.example, odds::holdAll)
            << " | " << mistake.costliest.decimals(4) << " |\n";
}

void writeSittings(std::ostream& out, const odds::FairOdds& odds)
{
    out << "\n## Sittings\n\n"
           "Chances in % and credits won or lost, for perfect play of the trainer's pay table "
           "from\n"
           "a fairly shuffled deck; the last column is the chance to have lost a bankroll of 500\n"
           "credits on the way.\n\n"
           "| hands | behind | even | ahead | 5 % | 25 % | 50 % | 75 % | 95 % | a royal | 500 lost "
           "|\n"
           "|---|---|---|---|---|---|---|---|---|---|---|\n";
    const odds::OneHand one = odds::oneHand(odds, odds::trainersPays(), odds::Strategy::perfect);
    for (const std::int64_t hands : {100, 600, 2400, 10000}) {
        const odds::Sitting sitting(one, hands);
        out << "| " << hands;
        for (const auto& [least, most] :
             {std::pair{-endless, std::int64_t{-1}}, {0, 0}, {1, endless}})
            out << " | " << decimals(100 * sitting.chanceOf(least, most), 2);
        for (const double share : {0.05, 0.25, 0.5, 0.75, 0.95})
            out << " | " << sitting.quantile(share);
        out << " | " << decimals(100 * one.chanceOfAtLeastOne(royal, hands), 2) << " | "
            << decimals(100 * odds::chancesOfRuin(one, hands, 500).back(), 2) << " |\n";
    }
}

void writeCharts(std::ostream& out, const odds::HeldCards& heldCards, const odds::FairOdds& odds)
{
    const odds::Fraction trainers =
        odds.returnOf(odds::Strategy::perfect) - odds.returnOf(odds::Strategy::chartWorst);
    out << "\n## Charts\n\n"
           "What the best chart that was found with so many rows loses of 100 credits, when of\n"
           "holds that fit a row the worst is taken. The trainer's own 21 rows lose "
        << percent(trainers, 4) << ".\n\n| rows | loses |\n|---|---|\n";
    charts::ChartSearch search(heldCards);
    charts::Chart shown;
    for (const std::size_t rows : {12U, 16U, 21U, 24U, 30U}) {
        const charts::Chart chart = search.best(rows);
        out << "| " << rows << " | "
            << percent(charts::priceChart(heldCards, chart).loss(charts::Taken::worst), 4)
            << " |\n";
        if (rows == 24)
            shown = chart;
    }
    out << "\nThe one of 24 rows, best first:\n\n";
    for (const charts::Row& row : shown)
        out << "1. " << charts::rowText(row) << "\n";
    out << "\n### Without loss\n\n"
           "Rows may ask about the cards thrown away, too. The shortest chart found that plays\n"
           "every deal perfectly, `assets/charts/perfect.chart`, has 34 rows, of which seven ask.\n"
           "The search for it started from charts without loss that were gathered greedily, 82 to\n"
           "125 rows long. Over and over it put dozens of rows in by chance, many of them rows of\n"
           "the chart that ask something else. Then it took out, in an order of chance, each row\n"
           "without which the others can still be put in an order that loses nothing. What came "
           "out\n"
           "went on if it was no longer and asked no more. Four such runs of some minutes ended\n"
           "with 34 rows, and three in which no row asks more than two things with 35.\n";
}

} // namespace

void writeDocument(std::ostream& out)
{
    const odds::HeldCards heldCards;
    const odds::FairOdds odds = odds::fairOdds(heldCards);
    out << "# The odds of Jacks or Better\n\n"
           "Every figure is exact for a fairly shuffled deck and rounded only to be printed.\n"
           "`quillet-odds --document` writes this page.\n\n";
    writePayTables(out);
    writeTrainersTable(out, odds);
    writeMistakes(out, heldCards);
    writeSittings(out, odds);
    writeCharts(out, heldCards, odds);
}

} // namespace quillet::odds_program
