#include "odds/break_even.h"

#include "engine/pay_table.h"

#include <algorithm>
#include <utility>

namespace quillet::odds
{

namespace
{

// Pays a credit for a royal and nothing else. So the worth of a hold here is its chance of a royal,
// by which its real worth grows with each credit that a royal pays more.
HeldCards onlyRoyals()
{
    return HeldCards({0, 1});
}

// The best hold when a royal pays more or less; of holds worth the same, the one with most royals.
Hold bestAt(const Fraction& more, const DealtHand& hand, const DealtHand& royals)
{
    std::array<std::pair<Int128, std::int64_t>, holds> worth;
    for (Hold hold = 0; hold < holds; ++hold)
        worth[hold] = {hand.worth[hold] * more.denominator() +
                           royals.worth[hold] * more.numerator(),
                       royals.worth[hold]};
    return static_cast<Hold>(std::ranges::max_element(worth) - worth.begin());
}

} // namespace

std::optional<BreakEven> breakEven(const FairOdds& odds, const Pays& pays)
{
    const Fraction& chance = odds.chances[royalOutcome];
    if (chance == Fraction())
        return std::nullopt;
    const Fraction missing = (Fraction(1, 1) - odds.returned) * wager;
    const Fraction needed =
        Fraction(pays[royalOutcome], 1) + Fraction(missing.numerator() * chance.denominator(),
                                                   missing.denominator() * chance.numerator());
    return needed < Fraction() ? std::nullopt : std::optional(BreakEven{needed, chance});
}

// Newton's method. The return is a convex function of the royal, made of straight pieces, so all
// steps but the first go down, and they end at the exact root. At the start a dealt royal is held,
// or royals might not come at all.
std::optional<BreakEven> perfectBreakEven(const HeldCards& heldCards)
{
    const Pays& pays = heldCards.pays();
    const HeldCards royals = onlyRoyals();
    Fraction pay;
    std::optional next = BreakEven{{std::ranges::max(pays), 1}, {}};
    do {
        pay = next->royal;
        const Fraction more = pay - Fraction(pays[royalOutcome], 1);
        FinalHands finalHands(heldCards);
        forEachDeal(heldCards, [&](const DealtHand& hand, int members) {
            finalHands.add(hand, bestAt(more, hand, {royals, hand.places}), members);
        });
        next = breakEven(finalHands.odds(), pays);
    } while (next && next->royal != pay);
    return next;
}

std::vector<BestHold> bestHolds(const HeldCards& heldCards, const DealtHand& hand)
{
    const Fraction pay(heldCards.pays()[royalOutcome], 1);
    const DealtHand royals(onlyRoyals(), hand.places);
    std::vector<BestHold> best{{{}, bestAt(pay * -1, hand, royals)}};
    for (;;) {
        const Hold now = best.back().hold;
        std::optional<Fraction> next; // more than `pay`
        for (Hold hold = 0; hold < holds; ++hold) {
            const std::int64_t moreRoyals = royals.worth[hold] - royals.worth[now];
            if (moreRoyals <= 0)
                continue;
            const Fraction more(hand.worth[now] - hand.worth[hold], moreRoyals);
            next = next && *next < more ? next : more;
        }
        if (!next)
            return best;
        best.push_back({pay + *next, bestAt(*next, hand, royals)});
    }
}

} // namespace quillet::odds
