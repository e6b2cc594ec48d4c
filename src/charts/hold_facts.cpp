#include "charts/hold_facts.h"

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
    std::array<int, 13> count{};
    for (const Card& card : held) {
        const auto rank = static_cast<unsigned>(card.rank - 1);
        ++count[rank];
        ranks |= 1U << rank;
        suited = suited && card.suit == held.front().suit;
    }
    for (std::size_t rank = 0; rank < count.size(); ++rank) {
        const bool isHigh = (highRanks >> rank & 1U) != 0;
        alike = std::max(alike, count[rank]);
        pairs += count[rank] == 2 ? 1 : 0;
        highPair = highPair || (count[rank] == 2 && isHigh);
        high += isHigh ? count[rank] : 0;
    }
    if (alike != 1)
        return;
    const RankSet fromLowest = ranks >> std::countr_zero(ranks);
    follow = (fromLowest & (fromLowest + 1)) == 0;
    straights = static_cast<int>(std::ranges::count_if(
        straightsOfTheDeck, [this](RankSet straight) { return (ranks & ~straight) == 0; }));
}

RankSet straightPartners(RankSet ranks)
{
    RankSet partners = 0;
    for (const RankSet straight : straightsOfTheDeck)
        partners |= (ranks & ~straight) == 0 ? straight : 0;
    return partners & ~ranks;
}

} // namespace quillet::charts
