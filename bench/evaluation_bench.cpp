#include "coach/hold_coach.h"
#include "engine/deck.h"
#include "engine/hand_evaluation.h"
#include "engine/random.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>
#include <random>
#include <vector>

namespace quillet
{

namespace
{

std::uint64_t stoppedClock()
{
    return 0;
}

// The next larger number with as many bits (Gosper's hack).
std::uint64_t nextChoice(std::uint64_t bits)
{
    const std::uint64_t lowest = bits & -bits;
    const std::uint64_t carried = bits + lowest;
    return carried | ((bits ^ carried) >> 2) / lowest;
}

using Hand = std::array<Card, 5>;

// Every hand of the deck, in random order, so that no branch predictor can learn them. 78 MB.
std::vector<Hand> allHands()
{
    std::vector<Hand> hands;
    hands.reserve(2'598'960);
    std::mt19937 random(1);
    for (std::uint64_t cards = 0b11111; cards < std::uint64_t{1} << 52; cards = nextChoice(cards)) {
        Hand& hand = hands.emplace_back();
        std::uint64_t rest = cards;
        for (Card& card : hand) {
            card = makeCard(static_cast<std::int16_t>(std::countr_zero(rest)));
            rest &= rest - 1;
        }
        std::ranges::shuffle(hand, random);
    }
    std::ranges::shuffle(hands, random);
    return hands;
}

// A random number of each hand's cards, none to five, over fillers.
std::vector<Hand> randomHolds()
{
    std::mt19937 random(2);
    auto hands = allHands();
    for (Hand& hand : hands) {
        for (int place = static_cast<int>(random() % 6); place < 5; ++place)
            hand[static_cast<std::size_t>(place)] = fillerCard(place);
    }
    return hands;
}

void classify(benchmark::State& state, const std::vector<Hand>& hands, bool finalHand)
{
    std::size_t next = 0;
    for ([[maybe_unused]] auto step : state) {
        benchmark::DoNotOptimize(EvaluatePokerHand(hands[next], finalHand));
        next = next + 1 < hands.size() ? next + 1 : 0;
    }
}

void dealtHands(benchmark::State& state)
{
    classify(state, allHands(), false);
}
BENCHMARK(dealtHands);

void finalHands(benchmark::State& state)
{
    classify(state, allHands(), true);
}
BENCHMARK(finalHands);

void heldCardsOverFillers(benchmark::State& state)
{
    classify(state, randomHolds(), false);
}
BENCHMARK(heldCardsOverFillers);

void judgements(benchmark::State& state)
{
    const auto hands = allHands();
    std::vector<std::int16_t> plays;
    std::vector<std::array<bool, 5>> holds;
    std::mt19937 random(3);
    for (const auto& hand : hands) {
        plays.push_back(EvaluatePokerHand(hand, false));
        for (bool& held : holds.emplace_back())
            held = random() % 2 != 0;
    }
    std::size_t next = 0;
    for ([[maybe_unused]] auto step : state) {
        benchmark::DoNotOptimize(isCorrectHold(hands[next], holds[next], plays[next]));
        next = next + 1 < hands.size() ? next + 1 : 0;
    }
}
BENCHMARK(judgements);

void shuffles(benchmark::State& state)
{
    BlendingRandom random(stoppedClock, 3);
    for ([[maybe_unused]] auto step : state)
        benchmark::DoNotOptimize(shuffledDeck(random));
}
BENCHMARK(shuffles);

} // namespace

} // namespace quillet
