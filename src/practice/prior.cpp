#include "practice/prior.h"

#include <cmath>

namespace quillet::practice
{

namespace
{

constexpr double chartsShare = 0.07; // of players who err as the trainer's chart does
constexpr double ownErrorRate = 0.1; // in a decision with a small lead and little at stake
constexpr double clearLead = 1.2;    // in credits; beyond it errors become rare
constexpr double clearPower = 6;
constexpr double boundOfStake = 0.002; // in credits a hand

constexpr double rareMistakes = 0.027;
constexpr double boundOfRareStake = 0.016;

double stakeOf(const Decision& decision)
{
    return decision.probability() * decision.lead();
}

} // namespace

double expectedErrorRate(const Decision& decision)
{
    const double clearness = 1 + std::pow(decision.lead() / clearLead, clearPower);
    const double stake = 1 + stakeOf(decision) / boundOfStake;
    return chartsShare * decision.chartErrorRate() + ownErrorRate / clearness / stake;
}

double chanceOfMistakes(const Decision& decision)
{
    const double stake = stakeOf(decision) / boundOfRareStake;
    // On average half of the deals are wrong in a decision that the player does not know.
    return 2 * expectedErrorRate(decision) + rareMistakes / (1 + stake * stake);
}

} // namespace quillet::practice
