#include "odds_program/answer.h"

#include "charts/chart.h"
#include "charts/chart_search.h"
#include "odds/hand_text.h"
#include "odds_program/chart_card.h"
#include "odds_program/hand_stream.h"
#include "odds_program/output_file.h"
#include "odds_program/progress_bar.h"
#include "odds_program/reports.h"
#include "odds_program/text_input.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <functional>
#include <iostream>
#include <sstream>
#include <string>
#include <thread>
#include <unistd.h>
#include <vector>

namespace quillet::odds_program
{

namespace
{

// Parses the text of a file. A complaint begins with the name of the file.
template <typename Parse>
auto parsedFile(const std::string& path, Parse parse)
{
    try {
        return parse(inputText(path));
    } catch (const odds::BadInput& bad) {
        throw odds::BadInput(inputName(path) + ": " + bad.what());
    }
}

// The value of --pays is a pay table or the name of a file with one.
odds::HeldCards heldCardsFor(const Request& request)
{
    const std::string& text = request.pays;
    if (text.empty())
        return odds::HeldCards();
    if (odds::looksLikePays(text))
        return odds::HeldCards(odds::parsePays(text));
    try {
        return odds::HeldCards(parsedFile(text, odds::parsePays));
    } catch (const odds::BadInput&) {
        throw;
    } catch (const std::runtime_error& error) {
        throw std::runtime_error(
            error.what() +
            std::string("; a pay table is two numbers such as 9/6, nine numbers or a file"));
    }
}

charts::Chart chartFor(const Request& request)
{
    return request.chartFile.empty() ? charts::trainersChart()
                                     : parsedFile(request.chartFile, charts::parseChart);
}

void checkFiles(const Request& request)
{
    const bool hands = request.question == Question::handsFromInput;
    const auto inputs = {request.pays, request.chartFile, std::string(hands ? "-" : "")};
    if (std::ranges::count_if(inputs, isStandardInput) > 1)
        throw BadUsage("only one of the inputs can be standard input");
    if (request.cardFile && std::ranges::any_of(inputs, [&request](const std::string& input) {
            return wouldReplace(*request.cardFile, input);
        }))
        throw BadUsage("--card would overwrite an input file");
}

bool wantsColour()
{
    const char* none = std::getenv("NO_COLOR");
    const char* terminal = std::getenv("TERM");
    return isatty(STDOUT_FILENO) == 1 && (none == nullptr || *none == '\0') &&
           terminal != nullptr && std::string_view(terminal) != "dumb";
}

Style styleFor(const Request& request)
{
    return {request.style.format, request.style.exact, wantsColour()};
}

// The inputs of an answer.
struct Inputs {
    [[nodiscard]] charts::ChartPrice price() const { return charts::priceChart(heldCards, chart); }
    [[nodiscard]] odds::DealtHand hand() const
    {
        return {heldCards, odds::heldDeal(odds::parseHand(request.hand), 0).places};
    }

    const Request& request;
    charts::Chart chart = chartFor(request);
    odds::HeldCards heldCards = heldCardsFor(request);
};

Report answerGame(const Inputs& in)
{
    return gameReport(in.price(), in.heldCards.pays());
}

Report answerMistakes(const Inputs& in)
{
    return mistakesReport(charts::mistakesOf(in.heldCards, in.chart));
}

Report answerChart(const Inputs& in)
{
    return chartReport(in.chart, in.price());
}

Report answerHand(const Inputs& in)
{
    const odds::DealtHand hand = in.hand();
    return handReport(in.heldCards, hand, charts::ChartPlayer(in.chart).play(hand),
                      in.request.allHolds, in.request.style.format);
}

Report answerBreakEven(const Inputs& in)
{
    const odds::Pays& pays = in.heldCards.pays();
    if (in.request.hand.empty())
        return breakEvenReport(odds::perfectBreakEven(in.heldCards), in.price(), pays);
    const odds::DealtHand hand = in.hand();
    return bestHoldsReport(hand.places, odds::bestHolds(in.heldCards, hand), pays);
}

void answerHandsFromInput(const Inputs& in, std::ostream& out)
{
    std::cin.tie(nullptr); // answerHands flushes less often
    answerHands(std::cin, out, in.heldCards, in.request.allHolds, styleFor(in.request));
}

odds::Player playerOf(const charts::Chart& chart)
{
    return [player = charts::ChartPlayer(chart)](const odds::DealtHand& hand) {
        return player.bestHold(hand);
    };
}

Report answerSitting(const Inputs& in)
{
    ProgressBar bar;
    std::vector<SittingPlay> plays{{"perfect play", "Perfect play"},
                                   {"chart best choice", "Chart, best choice"}};
    std::vector<odds::Player> players{&odds::DealtHand::bestHold,
                                      playerOf(charts::trainersChart())};
    if (!in.request.chartFile.empty()) {
        plays.push_back({"own chart best choice", "Own chart, best choice"});
        players.push_back(playerOf(in.chart));
    }
    const std::vector<odds::Draws> draws = odds::drawsOf(in.heldCards, players);
    for (std::size_t i = 0; i < plays.size(); ++i)
        plays[i].draws = draws[i];
    return sittingReport(plays, in.heldCards.pays(), in.request.session, isatty(STDOUT_FILENO) == 1,
                         std::ref(bar));
}

Report answerSimulation(const Inputs& in)
{
    ProgressBar bar;
    const odds::Simulation simulation =
        odds::simulate(in.heldCards, playerOf(in.chart), in.request.seed, in.request.hands,
                       std::max(1U, std::thread::hardware_concurrency()), std::ref(bar));
    return simulationReport(simulation, in.price(), in.heldCards.pays());
}

charts::ChartSearch searched(const odds::HeldCards& heldCards)
{
    ProgressBar bar;
    return charts::ChartSearch(heldCards, std::ref(bar));
}

void answerBestChart(const Inputs& in, std::ostream& out)
{
    const charts::ChartSearch search = searched(in.heldCards);
    std::vector<PricedChart> found;
    for (std::size_t lines = in.request.minLines; lines <= in.request.maxLines; ++lines) {
        const charts::Chart& chart = search.best(lines);
        found.push_back({lines, chart, charts::priceChart(in.heldCards, chart)});
    }
    if (found.size() == 1)
        writeChartFile(out, found.front().chart, found.front().price);
    else
        writeReport(out, bestChartsReport(found), styleFor(in.request));
}

void answerCard(const Inputs& in)
{
    const std::size_t lines = in.request.maxLines;
    const charts::Chart chart = lines == 0 ? in.chart : searched(in.heldCards).best(lines);
    std::ostringstream page;
    writeChartCard(page, chart, charts::priceChart(in.heldCards, chart),
                   charts::rowExamples(in.heldCards, chart), in.heldCards.pays());
    writeFile(*in.request.cardFile, page.str());
}

} // namespace

void answer(const Request& request, std::ostream& out)
{
    checkFiles(request);
    const auto in = [&request] { return Inputs{request}; };
    const auto print = [&](const Report& report) { writeReport(out, report, styleFor(request)); };
    switch (request.question) {
    case Question::help:
        out << helpText();
        break;
    case Question::version:
        out << "quillet-odds " QUILLET_VERSION "\n";
        break;
    case Question::rowKinds:
        return reportRowKinds(out);
    case Question::selfTest:
        return selfTest(out);
    case Question::game:
        return print(answerGame(in()));
    case Question::hand:
        return print(answerHand(in()));
    case Question::breakEven:
        return print(answerBreakEven(in()));
    case Question::handsFromInput:
        return answerHandsFromInput(in(), out);
    case Question::mistakes:
        return print(answerMistakes(in()));
    case Question::sitting:
        return print(answerSitting(in()));
    case Question::simulation:
        return print(answerSimulation(in()));
    case Question::chart:
        return print(answerChart(in()));
    case Question::plays:
        return reportPlays(out, heldCardsFor(request), chartFor(request));
    case Question::bestChart:
        return answerBestChart(in(), out);
    case Question::card:
        return answerCard(in());
    }
}

} // namespace quillet::odds_program
