#include "cards/card_art.h"
#include "cards/card_numbers.h"

#include <benchmark/benchmark.h>

namespace quillet
{
namespace
{

// All faces and backs, as when the window opens on a display with this scale factor.
void allCards(benchmark::State& state)
{
    const auto scale = static_cast<int>(state.range(0));
    const QSize size(cardArtWidth * scale, cardArtHeight * scale);
    for ([[maybe_unused]] auto unused : state) {
        for (int card = 0; card < 52; ++card)
            benchmark::DoNotOptimize(renderCard(card, size));
        for (int back = firstBack; isBack(back); ++back)
            benchmark::DoNotOptimize(renderCard(back, size));
    }
}
BENCHMARK(allCards)->Arg(1)->Arg(2)->Unit(benchmark::kMillisecond);

void oneCard(benchmark::State& state)
{
    for ([[maybe_unused]] auto unused : state)
        benchmark::DoNotOptimize(
            renderCard(static_cast<int>(state.range(0)), QSize(cardArtWidth, cardArtHeight)));
}
BENCHMARK(oneCard)
    ->Arg(36)
    ->Arg(44)
    ->Arg(48)
    ->DenseRange(firstBack, sleeveBack)
    ->Unit(benchmark::kMicrosecond);

} // namespace
} // namespace quillet
