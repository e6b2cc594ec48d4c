#include "engine/hand_evaluation.h"
#include "engine/pay_table.h"
#include "odds/columns.h"
#include "odds/hand_text.h"
#include "odds/reports.h"

#include <ostream>

namespace quillet
{

namespace
{

constexpr std::array<std::string_view, strategies> strategyNames{
    "Perfect play", "Chart, best choice", "Chart, any choice", "Chart, worst choice"};
constexpr std::array<std::string_view, strategies> strategyWords{"perfect", "chart best",
                                                                 "chart average", "chart worst"};

std::string_view outcomeName(std::size_t outcome)
{
    return outcome == 0 ? "Nothing" : playName(payTable()[outcome - 1].playCode);
}

std::string rowName(std::size_t row)
{
    return std::string(playName(static_cast<std::int16_t>(row + 1)));
}

std::string percent(const Fraction& share)
{
    return (share * 100).decimals(8);
}

std::string oneIn(const Fraction& chance)
{
    return Fraction(chance.denominator(), chance.numerator()).decimals(2);
}

void writeReturns(std::ostream& out, const FairOdds& odds)
{
    out << "Return for a fairly shuffled deck: credits won for 100 credits paid\n\n";
    for (std::size_t i = 0; i < strategies; ++i)
        out << "  " << left(strategyNames[i], 22) << right(percent(odds.returned[i]), 12) << "  = "
            << odds.returned[i].text() << "\n";
    const auto deals = Fraction(FairOdds::deals, 1);
    out << "\nOf the " << deals.text() << " deals the coach accepts several holds for "
        << odds.dealsWithAChoice << ". The chart's best choice\nis perfect for "
        << odds.dealsPlayedPerfectly << " deals ("
        << Fraction(Int128{odds.dealsPlayedPerfectly} * 100, FairOdds::deals).decimals(2)
        << " %).\n";
}

void writeRows(std::ostream& out, const FairOdds& odds)
{
    out << "\nWhat each row of the chart loses against perfect play, in credits for 100 credits "
           "paid\nover all deals, and the deal for which its best choice costs most credits\n\n"
        << "  " << left("Row", 33) << right("Deals", 8) << right("Best choice", 13)
        << right("Worst choice", 14) << "  " << left("Costliest deal", 16) << right("Costs", 11)
        << "  Best choice, exactly; costs, exactly\n";
    for (std::size_t i = 0; i < odds.rows.size(); ++i) {
        const RowOdds& row = odds.rows[i];
        const Fraction& loss = row.loss[static_cast<std::size_t>(Strategy::chartBest)];
        const Fraction& worst = row.loss[static_cast<std::size_t>(Strategy::chartWorst)];
        const bool costs = row.costliest != Fraction();
        out << "  " << right(std::to_string(i + 1), 2) << " " << left(rowName(i), 30)
            << right(std::to_string(row.deals), 8) << right(percent(loss), 13)
            << right(percent(worst), 14);
        if (costs)
            out << "  " << left(holdText(row.example, holdAll), 16)
                << right(row.costliest.decimals(8), 11) << "  " << (loss * 100).text() << "; "
                << row.costliest.text();
        out << "\n";
    }
}

void writeChances(std::ostream& out, const FairOdds& odds, Strategy strategy)
{
    out << "\nWhat a hand comes to: " << strategyNames[static_cast<std::size_t>(strategy)] << "\n\n"
        << "  " << left("Final hand", 18) << right("Pays", 5) << right("Chance in %", 15)
        << right("One in", 12) << "  Exactly\n";
    for (std::size_t i = 0; i < outcomes; ++i) {
        const std::size_t outcome = (i + 1) % outcomes;
        const Fraction& chance = odds.chanceOf(strategy, outcome);
        out << "  " << left(outcomeName(outcome), 18) << right(std::to_string(payOf(outcome)), 5)
            << right(percent(chance), 15) << right(oneIn(chance), 12) << "  " << chance.text()
            << "\n";
    }
}

void writeGameCsv(std::ostream& out, const FairOdds& odds)
{
    const auto line = [&out](std::string_view figure, std::string_view subject,
                             std::string_view strategy, const Fraction& value, int places) {
        out << figure << ",\"" << subject << "\"," << strategy << "," << value.decimals(places)
            << "," << value.text() << "\n";
    };
    out << "figure,subject,strategy,decimal,fraction\n";
    for (std::size_t s = 0; s < strategies; ++s)
        line("return", "game", strategyWords[s], odds.returned[s], 10);
    for (std::size_t s = 0; s < strategies; ++s) {
        for (std::size_t outcome = 0; outcome < outcomes; ++outcome)
            line("chance", outcomeName(outcome), strategyWords[s], odds.chances[s][outcome], 10);
    }
    for (std::size_t i = 0; i < odds.rows.size(); ++i) {
        const RowOdds& row = odds.rows[i];
        line("deals", rowName(i), "", {row.deals, 1}, 0);
        for (std::size_t s = 1; s < strategies; ++s)
            line("loss", rowName(i), strategyWords[s], row.loss[s], 10);
        if (row.costliest != Fraction())
            line("costliest credits", rowName(i) + ": " + holdText(row.example, holdAll),
                 "chart best", row.costliest, 8);
    }
}

} // namespace

void reportGame(std::ostream& out, const FairOdds& odds, Format format)
{
    if (format == Format::csv) {
        writeGameCsv(out, odds);
        return;
    }
    writeReturns(out, odds);
    writeRows(out, odds);
    writeChances(out, odds, Strategy::perfect);
    writeChances(out, odds, Strategy::chartBest);
}

} // namespace quillet
