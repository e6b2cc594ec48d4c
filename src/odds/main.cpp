#include "charts/chart_search.h"
#include "engine/random.h"
#include "odds/chart_report.h"
#include "odds/command_line.h"
#include "odds/hand_text.h"
#include "odds/reports.h"

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <iterator>
#include <string>
#include <unistd.h>
#include <vector>

namespace
{

using namespace quillet;

// A bar on the terminal; nothing when the errors go elsewhere.
void showProgress(std::int64_t done, std::int64_t all)
{
    constexpr std::int64_t width = 40;
    if (isatty(STDERR_FILENO) == 0)
        return;
    const auto filled = static_cast<std::size_t>(done * width / all);
    std::cerr << "\r[" << std::string(filled, '#')
              << std::string(static_cast<std::size_t>(width) - filled, '.') << "] "
              << done * 100 / all << " %" << std::flush;
    if (done == all)
        std::cerr << "\r" << std::string(width + 8, ' ') << "\r" << std::flush;
}

std::string contentOf(const std::string& path)
{
    std::ifstream file(path, std::ios::binary);
    std::string content((std::istreambuf_iterator<char>(file)), {});
    if (!file)
        throw std::runtime_error(path + " cannot be read");
    return content;
}

void answer(const Request& request, std::ostream& out)
{
    if (request.help) {
        out << helpText();
        return;
    }
    const Format format = request.csv ? Format::csv : Format::text;
    if (request.rows) {
        reportRowKinds(out);
    } else if (!request.chartFile.empty()) {
        const HeldCards heldCards;
        const charts::Chart chart = charts::parseChart(contentOf(request.chartFile));
        if (request.plays)
            reportPlays(out, heldCards, chart);
        else
            reportChart(out, chart, charts::priceChart(heldCards, chart), format);
    } else if (request.bestChart) {
        const HeldCards heldCards;
        const charts::Chart chart = charts::ChartSearch(heldCards).best(
            static_cast<std::size_t>(*request.bestChart),
            [](double share) { showProgress(static_cast<std::int64_t>(share * 1000), 1000); });
        writeChartFile(out, chart, charts::priceChart(heldCards, chart));
    } else if (request.simulation) {
        const HeldCards heldCards;
        const std::int64_t hands = *request.simulation;
        BlendingRandom random([] { return std::uint64_t{0}; }, request.seed.value_or(1));
        const Simulation simulation = simulate(
            heldCards, random, hands, [hands](std::int64_t done) { showProgress(done, hands); });
        reportSimulation(out, simulation, fairOdds(heldCards), format);
    } else if (!request.hand.empty()) {
        auto places = parseHand(request.hand);
        std::ranges::sort(places);
        const HeldCards heldCards;
        reportHand(out, heldCards, DealtHand(heldCards, places), format);
    } else {
        reportGame(out, fairOdds(), format);
    }
}

} // namespace

int main(int argc, char** argv)
{
    try {
        const std::vector<std::string_view> arguments(argv + std::min(argc, 1), argv + argc);
        answer(parseArguments(arguments), std::cout);
        std::cout.flush();
        if (!std::cout)
            throw std::runtime_error("the answer could not be written");
    } catch (const BadUsage& error) {
        std::cerr << "quillet-odds: " << error.what() << "\nTry quillet-odds --help\n";
        return 2;
    } catch (const charts::BadChart& error) {
        std::cerr << "quillet-odds: " << error.what() << "\n";
        return 2;
    } catch (const BadHand& error) {
        std::cerr << "quillet-odds: " << error.what() << "\n";
        return 2;
    } catch (const std::exception& error) {
        std::cerr << "quillet-odds: " << error.what() << "\n";
        return EXIT_FAILURE;
    }
    return EXIT_SUCCESS;
}
