#include "practice/record.h"

#include "practice/prior.h"

#include <algorithm>

namespace quillet::practice
{

namespace
{

constexpr double fading = 0.95; // with each later answer in the decision
constexpr double shakyFrom = 0.25;
constexpr int firmFrom = 3;

// How many answers the prior counts as. In clear decisions it gives way more slowly: one slip there
// does not show that the player knows no better.
double strengthOf(const Decision& decision)
{
    constexpr double strength = 0.4;
    constexpr double strengthPerCredit = 4;
    constexpr double greatest = 40;
    if (decision.lead() < closeLead)
        return strength;
    return std::min(greatest, strength + strengthPerCredit * decision.lead());
}

} // namespace

Record::Record(const Decisions& decisions)
{
    m_tallies.reserve(decisions.all().size());
    for (const Decision& decision : decisions.all())
        m_tallies.push_back({expectedErrorRate(decision), strengthOf(decision)});
}

void Record::add(DecisionId id, bool right)
{
    Tally& tally = m_tallies[id];
    tally.right = tally.right * fading + (right ? 1 : 0);
    tally.wrong = tally.wrong * fading + (right ? 0 : 1);
    ++tally.answers;
}

double Record::doubt(DecisionId id) const
{
    const Tally& tally = m_tallies[id];
    return (tally.strength * tally.expected + tally.wrong) /
           (tally.strength + tally.right + tally.wrong);
}

State Record::state(DecisionId id) const
{
    const Tally& tally = m_tallies[id];
    if (tally.wrong > shakyFrom * (tally.right + tally.wrong))
        return State::shaky;
    return tally.answers < firmFrom ? State::unknown : State::firm;
}

} // namespace quillet::practice
