#include "charts/chart_price.h"
#include "charts/chart_search.h"
#include "engine/random.h"
#include "odds/break_even.h"
#include "odds/fair_odds.h"
#include "odds/ruin.h"
#include "odds/simulation.h"
#include "odds/sitting.h"

#include <benchmark/benchmark.h>

namespace quillet
{

using namespace odds;

namespace
{

// The computations of quillet-odds: every deal, every hold, every draw.
void theWholeGame(benchmark::State& state)
{
    for ([[maybe_unused]] auto step : state)
        benchmark::DoNotOptimize(fairOdds(HeldCards()));
}
BENCHMARK(theWholeGame)->Unit(benchmark::kMillisecond);

void theTrainersChart(benchmark::State& state)
{
    const HeldCards heldCards;
    for ([[maybe_unused]] auto step : state)
        benchmark::DoNotOptimize(charts::priceChart(heldCards, charts::trainersChart()));
}
BENCHMARK(theTrainersChart)->Unit(benchmark::kMillisecond);

void theBreakEvenRoyal(benchmark::State& state)
{
    for ([[maybe_unused]] auto step : state)
        benchmark::DoNotOptimize(perfectBreakEven(HeldCards()));
}
BENCHMARK(theBreakEvenRoyal)->Unit(benchmark::kMillisecond);

void theBestCharts(benchmark::State& state)
{
    const HeldCards heldCards;
    for ([[maybe_unused]] auto step : state)
        benchmark::DoNotOptimize(charts::ChartSearch(heldCards).best(25));
}
BENCHMARK(theBestCharts)->Unit(benchmark::kMillisecond);

// None of the best charts of 1 to 64 lines may lose more than a shorter one.
void longerCharts(benchmark::State& state)
{
    const std::string_view table = commonPays[static_cast<std::size_t>(state.range(0))];
    const HeldCards heldCards(parsePays(table));
    state.SetLabel(std::string(table));
    for ([[maybe_unused]] auto step : state) {
        const charts::ChartSearch search(heldCards);
        double least = 100;
        for (std::size_t lines = 1; lines <= charts::maxRows; ++lines) {
            const double loss = charts::priceChart(heldCards, search.best(lines))
                                    .loss(charts::Taken::worst)
                                    .value();
            if (loss > least)
                state.SkipWithError("a longer chart loses more");
            least = loss;
        }
    }
}
BENCHMARK(longerCharts)->DenseRange(0, 5)->Iterations(1)->Unit(benchmark::kSecond);

void countsOfHeldCards(benchmark::State& state)
{
    for ([[maybe_unused]] auto step : state)
        benchmark::DoNotOptimize(HeldCards());
}
BENCHMARK(countsOfHeldCards)->Unit(benchmark::kMillisecond);

void oneDeal(benchmark::State& state)
{
    const HeldCards heldCards;
    const std::array<DeckPlace, 5> places{8, 9, 10, 12, 13};
    for ([[maybe_unused]] auto step : state)
        benchmark::DoNotOptimize(DealtHand(heldCards, places));
}
BENCHMARK(oneDeal);

void simulatedHands(benchmark::State& state)
{
    const HeldCards heldCards;
    const charts::ChartPlayer chart(charts::trainersChart());
    const Player player = [&chart](const DealtHand& hand) { return chart.bestHold(hand); };
    BlendingRandom random([] { return std::uint64_t{0}; }, 1);
    constexpr std::int64_t hands = 10000;
    for ([[maybe_unused]] auto step : state)
        benchmark::DoNotOptimize(playHands(heldCards, player, random, hands));
    state.SetItemsProcessed(state.iterations() * hands);
}
BENCHMARK(simulatedHands)->Unit(benchmark::kMillisecond);

Draws perfectDraws()
{
    const Player perfect = [](const DealtHand& hand) { return hand.bestHold; };
    return drawsOf(HeldCards(), {perfect})[0];
}

void theDraws(benchmark::State& state)
{
    for ([[maybe_unused]] auto step : state)
        benchmark::DoNotOptimize(perfectDraws());
}
BENCHMARK(theDraws)->Unit(benchmark::kMillisecond);

void aRound(benchmark::State& state)
{
    const Draws draws = perfectDraws();
    for ([[maybe_unused]] auto step : state)
        benchmark::DoNotOptimize(roundOf(draws, trainersPays(), state.range(0)));
}
BENCHMARK(aRound)->Arg(1)->Arg(10)->Arg(100)->Unit(benchmark::kMillisecond);

void aSitting(benchmark::State& state)
{
    const Round round = roundOf(perfectDraws(), trainersPays(), 1);
    for ([[maybe_unused]] auto step : state)
        benchmark::DoNotOptimize(Sitting(round, state.range(0)).quantile(0.5));
}
BENCHMARK(aSitting)->Arg(600)->Arg(100'000)->Unit(benchmark::kMillisecond);

void aBankroll(benchmark::State& state)
{
    const Round round = roundOf(perfectDraws(), trainersPays(), 1);
    for ([[maybe_unused]] auto step : state)
        benchmark::DoNotOptimize(Ruin(round, state.range(0)).chance(500));
}
BENCHMARK(aBankroll)->Arg(1000)->Arg(100'000)->Unit(benchmark::kMillisecond);

// 600 rounds, with the distribution of a round, the results and ruin.
void severalLines(benchmark::State& state)
{
    const Draws draws = perfectDraws();
    const std::int64_t lines = state.range(0);
    for ([[maybe_unused]] auto step : state) {
        const Round round = roundOf(draws, trainersPays(), lines);
        benchmark::DoNotOptimize(Sitting(round, 600).quantile(0.5));
        benchmark::DoNotOptimize(Ruin(round, 600).chance(1000 * lines));
    }
}
BENCHMARK(severalLines)->Arg(3)->Arg(5)->Arg(10)->Arg(100)->Unit(benchmark::kMillisecond);

} // namespace

} // namespace quillet
