#include "coach/hold_judgement.h"
#include "engine/deck.h"
#include "engine/hand_evaluation.h"
#include "engine/random.h"

#include <benchmark/benchmark.h>

#include <array>
#include <cstdint>
#include <vector>

namespace quillet
{

namespace
{

std::uint64_t stoppedClock()
{
    return 0;
}

// Enough hands in random order that the branch predictor cannot learn them.
constexpr std::size_t handCount = 1 << 14;

std::vector<std::array<Card, 5>> randomHands()
{
    BlendingRandom random(stoppedClock, 1);
    std::vector<std::array<Card, 5>> hands(handCount);
    PokerDeck deck{};
    for (auto& hand : hands) {
        shuffleDeck(deck, random);
        hand = dealHand(deck);
    }
    return hands;
}

// A random number of each hand's cards, none to five, over fillers.
std::vector<std::array<Card, 5>> randomHolds()
{
    BlendingRandom random(stoppedClock, 2);
    auto hands = randomHands();
    for (auto& hand : hands) {
        for (int place = static_cast<int>(random.next() * 6); place < 5; ++place)
            hand[static_cast<std::size_t>(place)] = fillerCard(place);
    }
    return hands;
}

void classify(benchmark::State& state, const std::vector<std::array<Card, 5>>& hands,
              bool finalHand)
{
    std::size_t next = 0;
    for ([[maybe_unused]] auto step : state) {
        benchmark::DoNotOptimize(EvaluatePokerHand(hands[next], finalHand));
        next = (next + 1) % handCount;
    }
}

void dealtHands(benchmark::State& state)
{
    classify(state, randomHands(), false);
}
BENCHMARK(dealtHands);

void finalHands(benchmark::State& state)
{
    classify(state, randomHands(), true);
}
BENCHMARK(finalHands);

void heldCardsOverFillers(benchmark::State& state)
{
    classify(state, randomHolds(), false);
}
BENCHMARK(heldCardsOverFillers);

void judgements(benchmark::State& state)
{
    const auto hands = randomHands();
    std::vector<std::int16_t> plays;
    plays.reserve(hands.size());
    for (const auto& hand : hands)
        plays.push_back(EvaluatePokerHand(hand, false));
    std::size_t next = 0;
    for ([[maybe_unused]] auto step : state) {
        const std::array<bool, 5> held{(next & 1) != 0, (next & 2) != 0, (next & 4) != 0,
                                       (next & 8) != 0, (next & 16) != 0};
        benchmark::DoNotOptimize(isCorrectHold(hands[next], held, plays[next]));
        next = (next + 1) % handCount;
    }
}
BENCHMARK(judgements);

void shuffles(benchmark::State& state)
{
    BlendingRandom random(stoppedClock, 3);
    PokerDeck deck{};
    for ([[maybe_unused]] auto step : state) {
        shuffleDeck(deck, random);
        benchmark::DoNotOptimize(deck);
    }
}
BENCHMARK(shuffles);

} // namespace

} // namespace quillet
