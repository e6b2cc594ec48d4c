#include "practice/verdict.h"

#include "practice/reason.h"

#include <algorithm>

namespace quillet::practice
{

namespace
{

bool isZero(const odds::Fraction& credits)
{
    return credits == odds::Fraction();
}

std::string headlineOf(const Judgement& judgement)
{
    const bool free = isZero(judgement.cost);
    if (judgement.right)
        return free ? "Right"
                    : "Right by the chart, which gives away " + judgement.cost.decimals(2) +
                          " credits here";
    return free ? "Not what the chart holds, but worth as much as the best hold"
                : "Wrong: this costs " + judgement.cost.decimals(2) + " credits";
}

void addHold(Verdict& verdict, const char* whose, odds::Hold hold)
{
    const auto found = std::ranges::find(verdict.holds, hold, &ShownHold::hold);
    if (found == verdict.holds.end())
        verdict.holds.push_back({whose, hold, verdict.hand.expectedCredits(hold).value()});
    else
        found->whose += std::string(", ") + static_cast<char>(whose[0] - 'A' + 'a') + (whose + 1);
}

// The hold that the best one is compared with.
odds::Hold comparedHold(const Course& course, const Verdict& verdict)
{
    if (!isZero(verdict.judgement.cost))
        return verdict.held;
    if (!isZero(verdict.judgement.chartCost))
        return verdict.judgement.bestAllowed;
    return course.decisions.of(verdict.hand).rivalHold;
}

} // namespace

Verdict verdictOn(const Course& course, const Standard& standard, const odds::HeldDeal& deal)
{
    const odds::DealtHand hand(course.heldCards, deal.places);
    Verdict verdict{hand, deal.held, answerTo(course.decisions, hand, deal.held),
                    standard.judge(hand, deal.held)};
    const Judgement& judgement = verdict.judgement;
    // Of equal holds, the player's own is called the best.
    const odds::Hold best = isZero(judgement.cost) ? deal.held : judgement.best;
    const odds::Hold other = comparedHold(course, verdict);
    verdict.headline = headlineOf(judgement);
    verdict.reason = reason(course.heldCards, hand, best, other);
    const Judgement byRules = course.rules.judge(hand, best);
    if (isZero(byRules.chartCost))
        verdict.rule = course.rules.row(hand);
    addHold(verdict, "Best", best);
    addHold(verdict, "Yours", deal.held);
    if (!standard.isPerfect())
        addHold(verdict, "Chart's", judgement.bestAllowed);
    if (verdict.holds.size() == 1)
        addHold(verdict, "Next best", other);
    return verdict;
}

} // namespace quillet::practice
