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
    for (const std::string_view name : odds::commonPays) {
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
        out << " | "
            << decimals(100 * odds::chanceOfAtLeastOne(perfect, odds::royalOutcome, 1, hands), 2)
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
        out << " | "
            << decimals(100 * odds::chanceOfAtLeastOne(perfect, odds::royalOutcome, lines, hands),
                        2)
            << " | " << odds::Ruin(round, hands).bankrollFor(0.05) << " |\n";
    }
}

// A published list in the words of our charts.
constexpr std::string_view listOf16Lines = R"(
4 of a kind / straight flush / royal
4 to a royal
3 of a kind / straight / flush / full house
4 to a straight flush
2 pair
high pair
3 to a royal
4 to a flush
low pair
4 to an outside straight
2 high, suited
3 to a straight flush
2 high, lowest
10 and face, suited
1 high
nothing
)";

std::string lossOf(const odds::HeldCards& heldCards, const charts::Chart& chart, int places)
{
    return percent(charts::priceChart(heldCards, chart).loss(charts::Taken::worst), places);
}

void writeChart(std::ostream& out, const charts::Chart& chart)
{
    for (const charts::Row& row : chart)
        out << (row.sharesLine ? " / " : "\n1. ") << charts::rowText(row);
    out << "\n";
}

void writeCharts(std::ostream& out, const odds::HeldCards& heldCards,
                 const charts::ChartPrice& trainers)
{
    out << "\n## Charts\n\n"
           "The loss per 100 credits of the best chart found with at most that many lines, taking\n"
           "the worst of the holds that fit a line. Neighbouring rows share a line if that loses\n"
           "nothing. The trainer's own 21 lines lose "
        << percent(trainers.loss(charts::Taken::worst), 4)
        << " at 9/6.\n\n| lines | rows, 9/6 | loss, 9/6 | rows, 8/5 | loss, 8/5 |\n"
           "|---|---|---|---|---|\n";
    const odds::HeldCards eightFive(odds::parsePays("8/5"));
    const charts::ChartSearch search(heldCards);
    const charts::ChartSearch searchEightFive(eightFive);
    for (const std::size_t lines : {8U, 10U, 12U, 14U, 16U, 18U, 20U, 21U, 22U, 23U, 24U, 29U}) {
        const charts::Chart& chart = search.best(lines);
        const charts::Chart& chartEightFive = searchEightFive.best(lines);
        out << "| " << lines << " | " << chart.size() << " | " << lossOf(heldCards, chart, 6)
            << " | " << chartEightFive.size() << " | " << lossOf(eightFive, chartEightFive, 6)
            << " |\n";
    }
    out << "\nWith more lines the search finds nothing better: at 9/6 the best chart of up to "
        << charts::maxRows << "\nlines has " << charts::countText(search.best(charts::maxRows))
        << ". The chart of 18 lines at 9/6, best first:\n";
    writeChart(out, search.best(18));
    out << "\n### Without loss\n\n"
           "A row may also put conditions on the discards. The shortest chart found that plays "
           "every\n"
           "deal perfectly, `assets/charts/perfect.chart`, has 34 rows, seven of them with\n"
           "conditions, on 26 lines.\n";
}

void writePublishedLists(std::ostream& out, const odds::HeldCards& heldCards)
{
    const charts::Chart list = charts::parseChart(listOf16Lines);
    out << "\n### Published lists\n\n"
           "The same loss of lists that others have published for 9/6, with the lines as they "
           "count\n"
           "them. The list of 16 lines is priced by this program, as the chart below. The other "
           "figures\n"
           "are quoted.\n\n"
           "| list | lines | loss |\n|---|---|---|\n"
           "| with six exceptions | 36 | 0 |\n"
           "| the same without the exceptions | 36 | 0.00098560 |\n"
           "| a shorter one | 24 | 0.0069 |\n"
           "| a short one | "
        << charts::lineCount(list) << " | " << lossOf(heldCards, list, 4)
        << " |\n\n"
           "Those lists share lines less often than ours: counted as ours are, the list of 16 "
           "lines\n"
           "would have 15. By rows, 29 of ours match the 36 lines without their exceptions: they "
           "are\n"
           "the chart of 23 lines. The 34 rows of `perfect.chart` lose nothing, as the 36 "
           "lines\n"
           "with their exceptions do. Nobody has checked whether shorter charts exist, or that no\n"
           "better list has been published. The list of 16 lines in our words:\n";
    writeChart(out, list);
}

} // namespace

int main()
{
    const odds::HeldCards heldCards;
    std::cout << "# The odds of Jacks or Better\n\n"
                 "Figures are exact for a fairly shuffled deck and rounded only for printing; the\n"
                 "chances of sessions are within 1e-9. CONTRIBUTING.md says how to write this page "
                 "again.\n\n";
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
    writePublishedLists(std::cout, heldCards);
    writeLiterature(std::cout, heldCards, trainers.perfect);
}
