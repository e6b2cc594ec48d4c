#include "odds/simulation.h"

#include "engine/pay_table.h"
#include "engine/random.h"

#include <algorithm>
#include <atomic>
#include <cmath>
#include <functional>
#include <mutex>
#include <numeric>
#include <thread>
#include <vector>

namespace quillet::odds
{

namespace
{

// The cards of the hand are in the order of the deal.
std::size_t playedOutcome(std::array<Card, 5> hand, const PokerDeck& deck, const DealtHand& dealt,
                          Hold hold)
{
    std::uint64_t held = 0; // bit p for the card at place p
    for (std::size_t i = 0; i < dealt.places.size(); ++i)
        held |= std::uint64_t{hold >> i & 1U} << dealt.places[i];
    std::array<bool, 5> holdFlags{};
    for (std::size_t i = 0; i < hand.size(); ++i)
        holdFlags[i] = (held >> placeOf(hand[i]) & 1U) != 0;
    drawReplacements(hand, deck, holdFlags);
    return outcomeOf(hand);
}

} // namespace

std::int64_t PlayedHands::hands() const
{
    return std::accumulate(count.begin(), count.end(), std::int64_t{0});
}

void PlayedHands::add(const PlayedHands& others)
{
    std::ranges::transform(count, others.count, count.begin(), std::plus());
}

double PlayedHands::returned(const Pays& pays) const
{
    std::int64_t credits = 0;
    for (std::size_t outcome = 0; outcome < outcomeCount; ++outcome)
        credits += count[outcome] * pays[outcome];
    return static_cast<double>(credits) / static_cast<double>(hands() * wager);
}

double PlayedHands::margin(const Pays& pays) const
{
    const auto total = static_cast<double>(hands());
    double squares = 0;
    for (std::size_t outcome = 0; outcome < outcomeCount; ++outcome) {
        const double off = static_cast<double>(pays[outcome]) / wager - returned(pays);
        squares += static_cast<double>(count[outcome]) * off * off;
    }
    return total < 2 ? INFINITY : 1.96 * std::sqrt(squares / (total - 1) / total);
}

Simulation playHands(const HeldCards& heldCards, const Player& player, RandomSource& random,
                     std::int64_t hands)
{
    Simulation result;
    for (std::int64_t done = 0; done < hands; ++done) {
        const PokerDeck deck = shuffledDeck(random);
        const std::array<Card, 5> hand = dealHand(deck);
        std::array<DeckPlace, 5> places{};
        std::ranges::transform(hand, places.begin(), placeOf);
        std::ranges::sort(places);
        const DealtHand dealt(heldCards, places);
        ++result.perfect.count[playedOutcome(hand, deck, dealt, dealt.bestHold)];
        ++result.player.count[playedOutcome(hand, deck, dealt, player(dealt))];
    }
    return result;
}

Simulation simulate(const HeldCards& heldCards, const Player& player, std::uint64_t seed,
                    std::int64_t hands, unsigned threads, const WorkProgress& progress)
{
    // Each block of hands has its own random numbers, whichever thread plays it.
    constexpr std::int64_t block = 1 << 14;
    const std::int64_t blocks = (hands + block - 1) / block;
    std::atomic<std::int64_t> nextBlock = 0;
    std::mutex mutex;
    Simulation result;
    std::int64_t done = 0;
    const auto work = [&](const WorkProgress& report) {
        for (std::int64_t mine = nextBlock++; mine < blocks; mine = nextBlock++) {
            const auto number = static_cast<std::uint64_t>(mine);
            BlendingRandom random([number] { return number; }, seed);
            const std::int64_t count = std::min(block, hands - mine * block);
            const Simulation played = playHands(heldCards, player, random, count);
            const std::lock_guard lock(mutex);
            result.perfect.add(played.perfect);
            result.player.add(played.player);
            done += count;
            if (report)
                report(static_cast<double>(done) / static_cast<double>(hands));
        }
    };
    std::vector<std::jthread> helpers;
    for (unsigned thread = 1; thread < threads; ++thread)
        helpers.emplace_back([&work] { work({}); });
    work(progress);
    helpers.clear();
    return result;
}

} // namespace quillet::odds
