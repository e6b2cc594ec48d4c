#include "engine/hand_evaluation.h"
#include "engine/pay_table.h"
#include "odds/columns.h"
#include "odds/reports.h"

#include <iomanip>
#include <ostream>
#include <sstream>

namespace quillet
{

namespace
{

std::string decimals(double value, int places)
{
    std::ostringstream text;
    text << std::fixed << std::setprecision(places) << value;
    return text.str();
}

void writeSummary(std::ostream& out, std::string_view name, const PlayedHands& played,
                  const Fraction& fair)
{
    out << "  " << left(name, 20) << right(decimals(100 * played.returned(), 4), 9) << " +- "
        << left(decimals(100 * played.margin(), 4), 8) << "  from a fair deck "
        << (fair * 100).decimals(4) << "\n";
}

void writeTable(std::ostream& out, const Simulation& simulation, const FairOdds& fair)
{
    out << simulation.perfect.hands()
        << " hands from decks shuffled as the trainer shuffles them\n\n"
        << "Return: credits won for 100 credits paid, with the margin of 95 %\n\n";
    writeSummary(out, "Best holds", simulation.perfect, fair.returnOf(Strategy::perfect));
    writeSummary(out, "Chart, best choice", simulation.chart, fair.returnOf(Strategy::chartBest));
    out << "\n  " << left("Final hand", 20) << right("Best holds", 14) << right("Fair deck", 14)
        << right("Chart", 14) << right("Fair deck", 14) << "\n";
    const auto fairCount = [&](Strategy strategy, std::size_t outcome) {
        const auto hands = static_cast<double>(simulation.perfect.hands());
        return right(decimals(hands * fair.chanceOf(strategy, outcome).value(), 1), 14);
    };
    for (std::size_t outcome = 1; outcome < outcomes; ++outcome)
        out << "  " << left(playName(payTable()[outcome - 1].playCode), 20)
            << right(std::to_string(simulation.perfect.count[outcome]), 14)
            << fairCount(Strategy::perfect, outcome)
            << right(std::to_string(simulation.chart.count[outcome]), 14)
            << fairCount(Strategy::chartBest, outcome) << "\n";
}

void writeCsvLine(std::ostream& out, std::string_view strategy, const PlayedHands& played,
                  const Fraction& fair)
{
    out << strategy << "," << played.hands() << "," << decimals(played.returned(), 8) << ","
        << decimals(played.margin(), 8) << "," << fair.decimals(8);
    for (std::size_t outcome = 1; outcome < outcomes; ++outcome)
        out << "," << played.count[outcome];
    out << "\n";
}

} // namespace

void reportSimulation(std::ostream& out, const Simulation& simulation, const FairOdds& fair,
                      Format format)
{
    if (format == Format::text) {
        writeTable(out, simulation, fair);
        return;
    }
    out << "strategy,hands,return,margin,fair return";
    for (const Payout& payout : payTable())
        out << "," << playName(payout.playCode);
    out << "\n";
    writeCsvLine(out, "perfect", simulation.perfect, fair.returnOf(Strategy::perfect));
    writeCsvLine(out, "chart best", simulation.chart, fair.returnOf(Strategy::chartBest));
}

} // namespace quillet
