#include "charts/chart_price.h"
#include "charts/chart_search.h"
#include "charts/mistakes.h"
#include "literature.h"
#include "odds/break_even.h"
#include "odds/fair_odds.h"
#include "odds/hand_text.h"
#include "odds/ruin.h"
#include "odds/sitting.h"
#include "odds_program/report.h"

#include <array>
#include <cstdint>
#include <iostream>
#include <limits>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

// Writes docs/odds.md to the standard output, in about fifteen seconds.

namespace
{

using namespace quillet;
using odds_program::decimals;

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
           "The return in % at five credits a hand, where a royal pays 4000. The variance is that\n"
           "of one hand of perfect play, in wagers squared. The chart's player takes the best of\n"
           "the holds that the coach accepts; the loss is against perfect play. The chart is made\n"
           "for 9/6. With the royal in the last column perfect play returns 100 %.\n\n"
           "| full house/flush | perfect play | variance | the chart | loss | royal for 100 % |\n"
           "|---|---|---|---|---|---|\n";
    for (const std::string_view name : payTables) {
        const odds::Pays pays = odds::parsePays(name);
        const odds::HeldCards heldCards(pays);
        const charts::ChartPrice chart = charts::priceChart(heldCards, charts::trainersChart());
        out << "| " << name << " | " << percent(chart.perfect.returned, 6) << " | "
            << decimals(odds::roundOf(chart.perfect.chances, pays).variance(), 4) << " | "
            << percent(chart.played[charts::Taken::best].returned, 6) << " | "
            << percent(chart.loss(charts::Taken::best), 6) << " | "
            << odds::perfectBreakEven(heldCards)->royal.decimals(2) << " |\n";
    }
}

void writeTrainersTable(std::ostream& out, const charts::ChartPrice& trainers)
{
    out << "\n## The trainer's pay table\n\n"
           "| hand | pays | chance in %, perfect play | one in | chance in %, chart | one in |\n"
           "|---|---|---|---|---|---|\n";
    const odds::Pays pays = odds::trainersPays();
    for (std::size_t i = 0; i < odds::outcomeCount; ++i) {
        const std::size_t outcome = (i + 1) % odds::outcomeCount;
        out << "| " << odds::outcomeName(outcome) << " | " << pays[outcome];
        for (const auto* odds : {&trainers.perfect, &trainers.played[charts::Taken::best]}) {
            const odds::Fraction& chance = odds->chances[outcome];
            out << " | " << percent(chance, 6) << " | "
                << odds::Fraction(chance.denominator(), chance.numerator()).decimals(2);
        }
        out << " |\n";
    }
}

void writeMistakes(std::ostream& out, const odds::HeldCards& heldCards)
{
    out << "\n## Where the trainer's chart goes wrong\n\n"
           "Deals in which the best hold that the coach accepts is not the perfect one. The cost "
           "is\n"
           "per 100 credits bet over all deals; the last column is the cost of the costliest deal "
           "in\n"
           "credits. Quillet Practice asks what a player gets wrong, and these are among its "
           "questions.\n\n"
           "| the chart's row | perfect play holds | deals | cost | costliest deal | its cost |\n"
           "|---|---|---|---|---|---|\n";
    for (const charts::Mistake& mistake : charts::mistakesOf(heldCards, charts::trainersChart()))
        out << "| " << mistake.row << " | " << mistake.instead << " | " << mistake.deals << " | "
            << percent(mistake.cost, 6) << " | " << odds::holdText(mistake.example, odds::holdAll)
            << " | " << mistake.costliest.decimals(4) << " |\n";
}

// The chance of each result in percent, and what five shares of sessions end at or below.
void writeResults(std::ostream& out, const odds::Sitting& sitting)
{
    for (const auto& [least, most] : {std::pair{-endless, std::int64_t{-1}}, {0, 0}, {1, endless}})
        out << " | " << decimals(100 * sitting.chanceOf(least, most), 2);
    for (const double share : {0.05, 0.25, 0.5, 0.75, 0.95})
        out << " | " << sitting.quantile(share);
}

void writeSittings(std::ostream& out, const odds::Draws& perfect)
{
    out << "\n## Sessions\n\n"
           "Perfect play at the trainer's pay table, from a fairly shuffled deck. The columns 5 % "
           "to\n"
           "95 % are results in credits: that share of sessions ends at or below. The others are\n"
           "chances in %; the last is the chance of losing a bankroll of 500 credits on the "
           "way.\n\n"
           "| hands | behind | even | ahead | 5 % | 25 % | 50 % | 75 % | 95 % | a royal | ruin |\n"
           "|---|---|---|---|---|---|---|---|---|---|---|\n";
    const odds::Round one = odds::roundOf(perfect, odds::trainersPays());
    for (const std::int64_t hands : {100, 600, 2400, 10000}) {
        out << "| " << hands;
        writeResults(out, odds::Sitting(one, hands));
        out << " | " << decimals(100 * odds::chanceOfAtLeastOne(perfect, royal, 1, hands), 2)
            << " | " << decimals(100 * odds::Ruin(one, hands).chance(500), 2) << " |\n";
    }
}

void writeBring(std::ostream& out, const std::vector<odds::Draws>& plays)
{
    out << "\n### How much to bring\n\n"
           "The smallest bankroll in credits that runs out in the session with a chance of at "
           "most\n"
           "10, 5 or 1 %.\n\n"
           "| hands | perfect play: 10 % | 5 % | 1 % | the chart: 10 % | 5 % | 1 % |\n"
           "|---|---|---|---|---|---|---|\n";
    for (const std::int64_t hands : {100, 600, 2400, 10000}) {
        out << "| " << hands;
        for (const odds::Draws& play : plays) {
            const odds::Ruin ruin(odds::roundOf(play, odds::trainersPays()), hands);
            for (const double chance : {0.1, 0.05, 0.01})
                out << " | " << ruin.bankrollFor(chance);
        }
        out << " |\n";
    }
}

void writeSeveralLines(std::ostream& out, const odds::Draws& perfect)
{
    constexpr std::int64_t hands = 600;
    out << "\n### Several lines\n\n"
        << hands
        << " hands of perfect play on several lines: one deal, one hold, and a draw for each line\n"
           "at five credits. The variance is that of one hand on all lines, in wagers squared; n\n"
           "lines have 19.514676 n + 1.966389 n (n - 1). The last column is the smallest bankroll\n"
           "that runs out with a chance of at most 5 %.\n\n"
           "| lines | variance | behind | even | ahead | 5 % | 25 % | 50 % | 75 % | 95 % | a royal "
           "|"
           " bring |\n"
           "|---|---|---|---|---|---|---|---|---|---|---|---|\n";
    for (const std::int64_t lines : {1, 3, 5, 10, 50, 100}) {
        const odds::Round round = odds::roundOf(perfect, odds::trainersPays(), lines);
        out << "| " << lines << " | " << decimals(round.variance(), 4);
        writeResults(out, odds::Sitting(round, hands));
        out << " | " << decimals(100 * odds::chanceOfAtLeastOne(perfect, royal, lines, hands), 2)
            << " | " << odds::Ruin(round, hands).bankrollFor(0.05) << " |\n";
    }
}

void writeCharts(std::ostream& out, const odds::HeldCards& heldCards,
                 const charts::ChartPrice& trainers)
{
    out << "\n## Charts\n\n"
           "The loss per 100 credits of the best chart found with each number of rows, taking the\n"
           "worst of the holds that fit a row. The trainer's own 21 rows lose "
        << percent(trainers.loss(charts::Taken::worst), 4) << ".\n\n| rows | loss |\n|---|---|\n";
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
    out << "\nThe chart of 24 rows, best first:\n\n";
    for (const charts::Row& row : shown)
        out << "1. " << charts::rowText(row) << "\n";
    out << "\n### Without loss\n\n"
           "A row may also put conditions on the discards. The shortest chart found that plays "
           "every\n"
           "deal perfectly, `assets/charts/perfect.chart`, has 34 rows, seven of them with\n"
           "conditions, on 26 lines.\n";
}

} // namespace

int main()
{
    const odds::HeldCards heldCards;
    std::cout << "# The odds of Jacks or Better\n\n"
                 "Every figure is exact for a fairly shuffled deck and rounded only for printing.\n"
                 "CONTRIBUTING.md says how to write this page again.\n\n";
    writePayTables(std::cout);
    const charts::ChartPrice trainers = charts::priceChart(heldCards, charts::trainersChart());
    writeTrainersTable(std::cout, trainers);
    writeMistakes(std::cout, heldCards);
    const charts::ChartPlayer chart(charts::trainersChart());
    const std::vector<odds::Draws> plays = odds::drawsOf(
        heldCards, {[](const odds::DealtHand& hand) { return hand.bestHold; },
                    [&](const odds::DealtHand& hand) { return chart.bestHold(hand); }});
    writeSittings(std::cout, plays[0]);
    writeBring(std::cout, plays);
    writeSeveralLines(std::cout, plays[0]);
    writeCharts(std::cout, heldCards, trainers);
    writeLiterature(std::cout, heldCards, trainers.perfect);
}
