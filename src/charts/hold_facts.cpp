#include "charts/hold_facts.h"

#include "odds/held_cards.h"

#include <algorithm>
#include <array>
#include <bit>

namespace quillet::charts
{

namespace
{

// From the wheel, ace to five, up to the royal's ranks.
constexpr std::array<RankSet, 10> straightsOfTheDeck = [] {
    std::array<RankSet, 10> all{};
    for (std::size_t lowest = 0; lowest < 9; ++lowest)
        all[lowest] = 31U << lowest;
    all[9] = royalRanks;
    return all;
}();

} // namespace

HoldFacts::HoldFacts(std::span<const Card> held) : cards(static_cast<int>(held.size()))
{
    RankSet two = 0; // ranks of which there are two or more
    RankSet three = 0;
    RankSet four = 0;
    for (const Card& card : held) {
        const RankSet rank = 1U << (card.rank - 1);
        four |= three & rank;
        three |= two & rank;
        two |= ranks & rank;
        ranks |= rank;
        high += (rank & highRanks) != 0 ? 1 : 0;
        suited = suited && card.suit == held.front().suit;
    }
    for (const RankSet set : {ranks, two, three, four})
        alike += set != 0 ? 1 : 0;
    const RankSet pairRanks = two & ~three;
    pairs = std::popcount(pairRanks);
    highPair = (pairRanks & highRanks) != 0;
    if (alike != 1)
        return;
    const RankSet fromLowest = ranks >> std::countr_zero(ranks);
    consecutive = (fromLowest & (fromLowest + 1)) == 0;
    straights = static_cast<int>(std::ranges::count_if(
        straightsOfTheDeck, [this](RankSet straight) { return (ranks & ~straight) == 0; }));
}

const std::vector<HoldFacts>& factsByClass()
{
    static const std::vector<HoldFacts> facts = [] {
        std::vector<HoldFacts> all;
        all.reserve(odds::HeldCards::classCount);
        for (int size = 0; size <= 4; ++size) {
            odds::forEachClass(size, [&](const odds::SuitSets& sets) {
                const auto cards = odds::cardsAt(odds::placesOf<5>(sets));
                all.emplace_back(std::span(cards).first(static_cast<std::size_t>(size)));
            });
        }
        return all;
    }();
    return facts;
}

RankSet straightPartners(RankSet ranks)
{
    RankSet partners = 0;
    for (const RankSet straight : straightsOfTheDeck)
        partners |= (ranks & ~straight) == 0 ? straight : 0;
    return partners & ~ranks;
}

} // namespace quillet::charts
