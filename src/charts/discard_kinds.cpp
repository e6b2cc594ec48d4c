#include "charts/discard_kinds.h"

#include "charts/names.h"

#include <array>
#include <bit>

namespace quillet::charts
{

namespace
{

constexpr RankSet eight = 1U << 7;
constexpr RankSet nine = 1U << 8;

using T = const DiscardFacts&;

constexpr std::array<DiscardKind, 22> kinds{{
    {"no flush card", "None is of the suit of the kept cards, when these are of one suit.",
     [](T t) { return t.flushCards == 0; }},
    {"a flush card", "One or more are of the suit of the kept cards, which are of one suit.",
     [](T t) { return t.flushCards > 0; }},
    {"no straight card", "None lies in a straight with the kept cards.",
     [](T t) { return t.straightCards == 0; }},
    {"a straight card", "One or more lie in a straight with the kept cards.",
     [](T t) { return t.straightCards > 0; }},
    {"at most 1 straight card", "No two ranks among them lie in a straight with the kept cards.",
     [](T t) { return t.straightCards <= 1; }},
    {"no high", "No ace and no face.", [](T t) { return (t.ranks & highRanks) == 0; }},
    {"a high", "An ace or a face, or more of them.",
     [](T t) { return (t.ranks & highRanks) != 0; }},
    {"no ace", "No ace.", [](T t) { return (t.ranks & ace) == 0; }},
    {"an ace", "An ace or more.", [](T t) { return (t.ranks & ace) != 0; }},
    {"no king", "No king.", [](T t) { return (t.ranks & king) == 0; }},
    {"a king", "A king or more.", [](T t) { return (t.ranks & king) != 0; }},
    {"no queen", "No queen.", [](T t) { return (t.ranks & queen) == 0; }},
    {"a queen", "A queen or more.", [](T t) { return (t.ranks & queen) != 0; }},
    {"no jack", "No jack.", [](T t) { return (t.ranks & jack) == 0; }},
    {"a jack", "A jack or more.", [](T t) { return (t.ranks & jack) != 0; }},
    {"no 10", "No ten.", [](T t) { return (t.ranks & ten) == 0; }},
    {"a 10", "A ten or more.", [](T t) { return (t.ranks & ten) != 0; }},
    {"no 9", "No nine.", [](T t) { return (t.ranks & nine) == 0; }},
    {"a 9", "A nine or more.", [](T t) { return (t.ranks & nine) != 0; }},
    {"no 8", "No eight.", [](T t) { return (t.ranks & eight) == 0; }},
    {"no pair", "No two of one rank.", [](T t) { return !t.pair; }},
    {"no lower high", "Every ace or face is higher than the kept ones; the ace is the highest.",
     [](T t) { return t.highsAbove; }},
}};
static_assert(kinds.size() <= 32);
static_assert(noPair << 1U == noLowerHigh && DiscardSet{1} << (kinds.size() - 1) == noLowerHigh);

// Aces and faces only, with the ace above the king.
constexpr RankSet highsInOrder(RankSet ranks)
{
    return (ranks & faces) | ((ranks & ace) != 0 ? king << 1 : 0);
}

} // namespace

DiscardFacts::DiscardFacts(std::span<const Card> kept, std::span<const Card> thrown)
{
    const HoldFacts held(kept);
    for (const Card& card : thrown) {
        const RankSet rank = 1U << (card.rank - 1);
        pair = pair || (ranks & rank) != 0;
        ranks |= rank;
        if (held.cards > 0 && held.suited && card.suit == kept.front().suit)
            ++flushCards;
    }
    const RankSet highs = highsInOrder(ranks);
    const RankSet lowestHigh = highs & (~highs + 1);
    highsAbove = highs == 0 || highsInOrder(held.ranks) < lowestHigh;
    if (held.cards > 0)
        straightCards = std::popcount(ranks & straightPartners(held.ranks));
}

std::span<const DiscardKind> discardKinds()
{
    return kinds;
}

std::optional<std::size_t> findDiscardKind(std::string_view name)
{
    return findNamed(kinds, name);
}

bool fitAll(DiscardSet asked, const DiscardFacts& thrown)
{
    for (; asked != 0; asked &= asked - 1) {
        if (!kinds[static_cast<std::size_t>(std::countr_zero(asked))].fits(thrown))
            return false;
    }
    return true;
}

} // namespace quillet::charts
