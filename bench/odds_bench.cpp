#include "charts/chart_price.h"
#include "engine/random.h"
#include "odds/bankroll.h"
#include "odds/break_even.h"
#include "odds/fair_odds.h"
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

OneHand perfectHand()
{
    return oneHand(fairOdds(HeldCards()).chances, trainersPays());
}

void aSitting(benchmark::State& state)
{
    const OneHand one = perfectHand();
    for ([[maybe_unused]] auto step : state)
        benchmark::DoNotOptimize(Sitting(one, state.range(0)).quantile(0.5));
}
BENCHMARK(aSitting)->Arg(600)->Arg(100'000)->Unit(benchmark::kMillisecond);

void aBankroll(benchmark::State& state)
{
    const OneHand one = perfectHand();
    for ([[maybe_unused]] auto step : state)
        benchmark::DoNotOptimize(chancesOfRuin(one, state.range(0), 500));
}
BENCHMARK(aBankroll)->Arg(1000)->Arg(100'000)->Unit(benchmark::kMillisecond);

} // namespace

} // namespace quillet
