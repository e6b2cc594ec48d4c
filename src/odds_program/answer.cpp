#include "odds_program/answer.h"

#include "charts/chart.h"
#include "charts/chart_search.h"
#include "odds/hand_text.h"
#include "odds_program/chart_card.h"
#include "odds_program/chart_report.h"
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

namespace quillet::odds_program
{

namespace
{

// What the text in a file means.
template <typename Parse>
auto parsedFile(const std::string& path, Parse parse)
{
    constexpr std::size_t maxBytes = 1'000'000;
    TextInput file(path);
    try {
        return parse(file.all(maxBytes));
    } catch (const odds::BadInput& bad) {
        throw odds::BadInput(file.name() + ": " + bad.what());
    }
}

// The table that was asked for, or that of the file which was named.
odds::Pays paysFor(const std::string& text)
{
    if (text.empty())
        return odds::trainersPays();
    if (odds::looksLikePays(text))
        return odds::parsePays(text);
    try {
        return parsedFile(text, odds::parsePays);
    } catch (const odds::BadInput&) {
        throw;
    } catch (const std::runtime_error& error) {
        throw std::runtime_error(
            error.what() + std::string("; a pay table is 9/6 or the like, nine numbers or a file"));
    }
}

void checkFiles(const Request& request)
{
    const bool hands = request.question == Question::handsFromInput;
    const auto inputs = {request.pays, request.chartFile, std::string(hands ? "-" : "")};
    if (std::ranges::count_if(inputs, TextInput::isStandardInput) > 1)
        throw BadUsage("standard input can be read for one thing only");
    if (request.cardFile && std::ranges::any_of(inputs, [&request](const std::string& input) {
            return wouldReplace(*request.cardFile, input);
        }))
        throw BadUsage("--card would replace the file that is read");
}

bool wantsColour()
{
    const char* none = std::getenv("NO_COLOR");
    const char* terminal = std::getenv("TERM");
    return isatty(STDOUT_FILENO) == 1 && (none == nullptr || *none == '\0') &&
           terminal != nullptr && std::string_view(terminal) != "dumb";
}

void writeBestCharts(std::ostream& out, const Request& request, const odds::HeldCards& heldCards,
                     const Style& style)
{
    charts::ChartSearch search(heldCards);
    const std::size_t all = request.mostRows - request.leastRows + 1;
    std::vector<std::vector<Cell>> curve;
    ProgressBar bar;
    for (std::size_t rows = request.leastRows; rows <= request.mostRows; ++rows) {
        const charts::Chart chart = search.best(rows, [&](double share) {
            const double done = static_cast<double>(rows - request.leastRows) + share;
            bar.show(done / static_cast<double>(all));
        });
        const charts::ChartPrice price = charts::priceChart(heldCards, chart);
        if (all == 1) {
            writeChartFile(out, chart, price);
            return;
        }
        curve.push_back({static_cast<std::int64_t>(rows), static_cast<std::int64_t>(chart.size()),
                         Exact{price.loss(charts::Taken::worst), 6, true}});
    }
    writeReport(
        out,
        {{"best charts",
          "What the best chart found with each number of rows loses of 100 credits, taking\n"
          "the worst of the holds that fit a row\n\n",
          {{"rows", "Rows"}, {"used", "Used"}, {"loss", "Loss"}},
          curve,
          {}}},
        style);
}

void writeCardFile(const Request& request, const odds::HeldCards& heldCards,
                   const charts::Chart& asked)
{
    charts::Chart chart = asked.empty() ? charts::trainersChart() : asked;
    ProgressBar bar;
    if (request.mostRows > 0)
        chart = charts::ChartSearch(heldCards).best(request.mostRows,
                                                    [&bar](double share) { bar.show(share); });
    std::ostringstream page;
    writeChartCard(page, chart, charts::priceChart(heldCards, chart),
                   charts::rowExamples(heldCards, chart), heldCards.pays());
    writeFile(*request.cardFile, page.str());
}

void answerSitting(std::ostream& out, const Request& request, const odds::HeldCards& heldCards,
                   const Style& style)
{
    ProgressBar bar;
    const Report report =
        sittingReport(odds::fairOdds(heldCards), heldCards.pays(), request.hands, request.bankroll,
                      isatty(STDOUT_FILENO) == 1, [&bar](double share) { bar.show(share); });
    writeReport(out, report, style);
}

void answerSimulation(std::ostream& out, const Request& request, const odds::HeldCards& heldCards,
                      const Style& style)
{
    ProgressBar bar;
    const odds::Simulation simulation =
        odds::simulate(heldCards, request.seed, request.hands,
                       std::max(1U, std::thread::hardware_concurrency()), [&](std::int64_t done) {
                           bar.show(static_cast<double>(done) / static_cast<double>(request.hands));
                       });
    writeReport(out, simulationReport(simulation, odds::fairOdds(heldCards), heldCards.pays()),
                style);
}

} // namespace

void answer(const Request& request, std::ostream& out)
{
    Style style = request.style;
    style.colour = wantsColour();
    switch (request.question) {
    case Question::help:
        out << helpText();
        return;
    case Question::version:
        out << "quillet-odds " QUILLET_VERSION "\n";
        return;
    case Question::rowKinds:
        reportRowKinds(out);
        return;
    default:
        break;
    }
    checkFiles(request);
    const odds::Pays pays = paysFor(request.pays);
    std::array<odds::DeckPlace, 5> places{};
    if (request.question == Question::hand) {
        places = odds::parseHand(request.hand);
        std::ranges::sort(places);
    }
    const charts::Chart chart = request.chartFile.empty()
                                    ? charts::Chart{}
                                    : parsedFile(request.chartFile, charts::parseChart);

    const odds::HeldCards heldCards(pays);
    switch (request.question) {
    case Question::hand:
        writeReport(out,
                    handReport(heldCards, odds::DealtHand(heldCards, places), request.allHolds),
                    style);
        break;
    case Question::handsFromInput: {
        TextInput in("-", &out);
        answerHands(in, out, heldCards, request.allHolds, style);
        break;
    }
    case Question::mistakes:
        writeReport(out, mistakesReport(charts::mistakesOf(heldCards, charts::trainersChart())),
                    style);
        break;
    case Question::chartMistakes:
        writeReport(out, mistakesReport(charts::mistakesOf(heldCards, chart)), style);
        break;
    case Question::sitting:
        answerSitting(out, request, heldCards, style);
        break;
    case Question::simulation:
        answerSimulation(out, request, heldCards, style);
        break;
    case Question::chart:
        writeReport(out, chartReport(chart, charts::priceChart(heldCards, chart)), style);
        break;
    case Question::plays:
        reportPlays(out, heldCards, chart);
        break;
    case Question::card:
        writeCardFile(request, heldCards, chart);
        break;
    case Question::bestChart:
        writeBestCharts(out, request, heldCards, style);
        break;
    default:
        writeReport(out, gameReport(odds::fairOdds(heldCards), pays), style);
        break;
    }
}

} // namespace quillet::odds_program
