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

// What the parser makes of the text in a file.
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
    Style style = request.style;
    style.colour = wantsColour();
    return style;
}

Report answerGame(const Request& request)
{
    const odds::HeldCards heldCards = heldCardsFor(request);
    return gameReport(charts::priceChart(heldCards, charts::trainersChart()), heldCards.pays());
}

Report answerHand(const Request& request)
{
    auto places = odds::parseHand(request.hand);
    std::ranges::sort(places);
    const odds::HeldCards heldCards = heldCardsFor(request);
    const odds::DealtHand hand(heldCards, places);
    const charts::ChartPlayer player(charts::trainersChart());
    return handReport(heldCards, hand, player.play(hand), request.allHolds, request.style.format);
}

void answerHandsFromInput(const Request& request, std::ostream& out)
{
    std::cin.tie(nullptr); // answerHands flushes less often
    answerHands(std::cin, out, heldCardsFor(request), request.allHolds, styleFor(request));
}

Report answerMistakes(const Request& request)
{
    const charts::Chart chart = chartFor(request);
    return mistakesReport(charts::mistakesOf(heldCardsFor(request), chart));
}

Report answerSitting(const Request& request)
{
    ProgressBar bar;
    const odds::HeldCards heldCards = heldCardsFor(request);
    const odds::Pays& pays = heldCards.pays();
    const charts::ChartPrice chart = charts::priceChart(heldCards, charts::trainersChart());
    return sittingReport({odds::oneHand(chart.perfect.chances, pays),
                          odds::oneHand(chart.played[charts::Taken::best].chances, pays)},
                         request.hands, request.bankroll, isatty(STDOUT_FILENO) == 1,
                         [&bar](double share) { bar.show(share); });
}

Report answerSimulation(const Request& request)
{
    ProgressBar bar;
    const odds::HeldCards heldCards = heldCardsFor(request);
    const charts::Chart chart = charts::trainersChart();
    const charts::ChartPlayer player(chart);
    const odds::Simulation simulation = odds::simulate(
        heldCards, [&player](const odds::DealtHand& hand) { return player.bestHold(hand); },
        request.seed, request.hands, std::max(1U, std::thread::hardware_concurrency()),
        [&](std::int64_t done) {
            bar.show(static_cast<double>(done) / static_cast<double>(request.hands));
        });
    return simulationReport(simulation, charts::priceChart(heldCards, chart), heldCards.pays());
}

Report answerChart(const Request& request)
{
    const charts::Chart chart = chartFor(request);
    return chartReport(chart, charts::priceChart(heldCardsFor(request), chart));
}

void answerPlays(const Request& request, std::ostream& out)
{
    const charts::Chart chart = chartFor(request);
    reportPlays(out, heldCardsFor(request), chart);
}

void answerBestChart(const Request& request, std::ostream& out)
{
    const odds::HeldCards heldCards = heldCardsFor(request);
    charts::ChartSearch search(heldCards);
    const std::size_t count = request.maxRows - request.minRows + 1;
    std::vector<PricedChart> found;
    ProgressBar bar;
    for (std::size_t rows = request.minRows; rows <= request.maxRows; ++rows) {
        const charts::Chart chart = search.best(rows, [&](double share) {
            bar.show((static_cast<double>(found.size()) + share) / static_cast<double>(count));
        });
        found.push_back({rows, chart, charts::priceChart(heldCards, chart)});
    }
    if (count == 1)
        writeChartFile(out, found.front().chart, found.front().price);
    else
        writeReport(out, bestChartsReport(found), styleFor(request));
}

void answerCard(const Request& request)
{
    ProgressBar bar;
    charts::Chart chart = chartFor(request);
    const odds::HeldCards heldCards = heldCardsFor(request);
    if (request.maxRows > 0)
        chart = charts::ChartSearch(heldCards).best(request.maxRows,
                                                    [&bar](double share) { bar.show(share); });
    std::ostringstream page;
    writeChartCard(page, chart, charts::priceChart(heldCards, chart),
                   charts::rowExamples(heldCards, chart), heldCards.pays());
    writeFile(*request.cardFile, page.str());
}

} // namespace

void answer(const Request& request, std::ostream& out)
{
    checkFiles(request);
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
    case Question::game:
        return print(answerGame(request));
    case Question::hand:
        return print(answerHand(request));
    case Question::handsFromInput:
        return answerHandsFromInput(request, out);
    case Question::mistakes:
        return print(answerMistakes(request));
    case Question::sitting:
        return print(answerSitting(request));
    case Question::simulation:
        return print(answerSimulation(request));
    case Question::chart:
        return print(answerChart(request));
    case Question::plays:
        return answerPlays(request, out);
    case Question::bestChart:
        return answerBestChart(request, out);
    case Question::card:
        return answerCard(request);
    }
}

} // namespace quillet::odds_program
