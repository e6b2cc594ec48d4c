#include "odds/break_even.h"

#include "engine/pay_table.h"

#include <algorithm>
#include <utility>

namespace quillet::odds
{

namespace
{

constexpr std::size_t royal = 1; // outcome

Pays withoutRoyal(Pays pays)
{
    pays[royal] = 0;
    return pays;
}

// The best hold when a royal pays this much; of holds worth the same, the one with most royals.
Hold bestAt(const Fraction& pay, const DealtHand& others, const DealtHand& royals)
{
    std::array<std::pair<Int128, std::int64_t>, holds> worth;
    for (Hold hold = 0; hold < holds; ++hold)
        worth[hold] = {others.worth[hold] * pay.denominator() +
                           royals.worth[hold] * pay.numerator(),
                       royals.worth[hold]};
    return static_cast<Hold>(std::ranges::max_element(worth) - worth.begin());
}

} // namespace

std::optional<BreakEven> breakEven(const FairOdds& odds, const Pays& pays)
{
    const Fraction& chance = odds.chances[royal];
    if (chance == Fraction())
        return std::nullopt;
    const Fraction missing = (Fraction(1, 1) - odds.returned) * wager;
    const Fraction needed =
        Fraction(pays[royal], 1) + Fraction(missing.numerator() * chance.denominator(),
                                            missing.denominator() * chance.numerator());
    return needed < Fraction() ? std::nullopt : std::optional(BreakEven{needed, chance});
}

OpenRoyal::OpenRoyal(const Pays& pays)
    : m_start(std::ranges::max(pays)), m_others(withoutRoyal(pays)), m_royals({0, 1})
{
}

FairOdds OpenRoyal::perfectAt(const Fraction& pay) const
{
    FinalHands finalHands(m_others);
    forEachDeal(m_others, [&](const DealtHand& hand, int members) {
        finalHands.add(hand, bestAt(pay, hand, DealtHand(m_royals, hand.places)), members);
    });
    return finalHands.odds();
}

// Newton's method. The return is a convex function of the royal, made of straight pieces, so all
// steps but the first go down, and they end at the exact root. At the start a dealt royal is held,
// or royals might not come at all.
std::optional<BreakEven> OpenRoyal::breakEven() const
{
    Fraction pay;
    std::optional next = BreakEven{{m_start, 1}, {}};
    do {
        pay = next->royal;
        next = odds::breakEven(perfectAt(pay), m_others.pays());
    } while (next && next->royal != pay);
    return next;
}

std::vector<BestHold> OpenRoyal::bestHolds(const std::array<DeckPlace, 5>& ascending) const
{
    const DealtHand others(m_others, ascending);
    const DealtHand royals(m_royals, ascending);
    std::vector<BestHold> best{{{}, bestAt({}, others, royals)}};
    for (;;) {
        const Hold now = best.back().hold;
        std::optional<Fraction> next;
        for (Hold hold = 0; hold < holds; ++hold) {
            const std::int64_t more = royals.worth[hold] - royals.worth[now];
            if (more <= 0)
                continue;
            const Fraction pay(others.worth[now] - others.worth[hold], more);
            next = next && *next < pay ? next : pay;
        }
        if (!next)
            return best;
        best.push_back({*next, bestAt(*next, others, royals)});
    }
}

} // namespace quillet::odds
