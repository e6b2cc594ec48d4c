#include "odds/simulation.h"

#include "engine/hand_evaluation.h"
#include "engine/pay_table.h"
#include "odds/dealt_hand.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace quillet
{

namespace
{

struct Slot {
    DeckPlace place = 0;
    std::size_t number = 0;
};

std::size_t playedOutcome(std::array<Card, 5> hand, const PokerDeck& deck,
                          const std::array<Slot, 5>& slots, Hold hold)
{
    std::array<bool, 5> holdFlags{};
    for (std::size_t i = 0; i < slots.size(); ++i)
        holdFlags[slots[i].number] = (hold >> i & 1U) != 0;
    drawReplacements(hand, deck, holdFlags);
    return outcomeOf(EvaluatePokerHand(hand, true));
}

Hold bestAccepted(const DealtHand& dealt)
{
    Hold best = holds;
    for (Hold hold = 0; hold < holds; ++hold) {
        if (dealt.isAccepted(hold) && (best == holds || dealt.worth[hold] > dealt.worth[best]))
            best = hold;
    }
    return best;
}

} // namespace

std::int64_t PlayedHands::hands() const
{
    return std::accumulate(count.begin(), count.end(), std::int64_t{0});
}

double PlayedHands::returned() const
{
    std::int64_t credits = 0;
    for (std::size_t outcome = 0; outcome < outcomes; ++outcome)
        credits += count[outcome] * payOf(outcome);
    return static_cast<double>(credits) / static_cast<double>(hands() * wager);
}

double PlayedHands::margin() const
{
    const auto total = static_cast<double>(hands());
    double squares = 0;
    for (std::size_t outcome = 0; outcome < outcomes; ++outcome) {
        const double off = static_cast<double>(payOf(outcome)) / wager - returned();
        squares += static_cast<double>(count[outcome]) * off * off;
    }
    return total < 2 ? INFINITY : 1.96 * std::sqrt(squares / (total - 1) / total);
}

Simulation simulate(const HeldCards& heldCards, RandomSource& random, std::int64_t hands,
                    const std::function<void(std::int64_t)>& progress)
{
    constexpr std::int64_t reportEvery = 1 << 14;
    Simulation result;
    PokerDeck deck{};
    for (std::int64_t done = 0; done < hands; ++done) {
        if (done % reportEvery == 0)
            progress(done);
        shuffleDeck(deck, random);
        const std::array<Card, 5> hand = dealHand(deck);
        std::array<Slot, 5> slots;
        for (std::size_t i = 0; i < slots.size(); ++i)
            slots[i] = {placeOf(hand[i]), i};
        std::ranges::sort(slots, {}, &Slot::place);
        std::array<DeckPlace, 5> places{};
        std::ranges::transform(slots, places.begin(), &Slot::place);

        const DealtHand dealt(heldCards, places);
        ++result.perfect.count[playedOutcome(hand, deck, slots, dealt.bestHold)];
        ++result.chart.count[playedOutcome(hand, deck, slots, bestAccepted(dealt))];
    }
    progress(hands);
    return result;
}

} // namespace quillet
