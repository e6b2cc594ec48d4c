#include "engine/random.h"
#include "odds/fair_odds.h"
#include "odds/simulation.h"

#include <benchmark/benchmark.h>

namespace quillet
{

namespace
{

// What quillet-odds works out before it prints: every deal, every hold, every draw.
void theWholeGame(benchmark::State& state)
{
    for (auto _ : state)
        benchmark::DoNotOptimize(fairOdds());
}
BENCHMARK(theWholeGame)->Unit(benchmark::kMillisecond);

void countsOfHeldCards(benchmark::State& state)
{
    for (auto _ : state)
        benchmark::DoNotOptimize(HeldCards());
}
BENCHMARK(countsOfHeldCards)->Unit(benchmark::kMillisecond);

void oneDeal(benchmark::State& state)
{
    const HeldCards heldCards;
    const std::array<DeckPlace, 5> places{8, 9, 10, 12, 13};
    for (auto _ : state)
        benchmark::DoNotOptimize(DealtHand(heldCards, places));
}
BENCHMARK(oneDeal);

void simulatedHands(benchmark::State& state)
{
    const HeldCards heldCards;
    BlendingRandom random([] { return std::uint64_t{0}; }, 1);
    constexpr std::int64_t hands = 10000;
    for (auto _ : state)
        benchmark::DoNotOptimize(simulate(heldCards, random, hands, [](std::int64_t) {}));
    state.SetItemsProcessed(state.iterations() * hands);
}
BENCHMARK(simulatedHands)->Unit(benchmark::kMillisecond);

} // namespace

} // namespace quillet
