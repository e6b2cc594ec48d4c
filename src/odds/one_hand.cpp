#include "odds/one_hand.h"

#include "engine/pay_table.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace quillet::odds
{

OneHand oneHand(const OutcomeChances& chances, const Pays& pays)
{
    OneHand one{{}, pays};
    std::ranges::transform(chances, one.chance.begin(), &Fraction::value);
    return one;
}

double OneHand::returned() const
{
    double sum = 0;
    for (std::size_t outcome = 0; outcome < outcomeCount; ++outcome)
        sum += chance[outcome] * static_cast<double>(pays[outcome]);
    return sum / wager;
}

double OneHand::variance() const
{
    double sum = 0;
    for (std::size_t outcome = 0; outcome < outcomeCount; ++outcome) {
        const double off = static_cast<double>(pays[outcome]) / wager - returned();
        sum += chance[outcome] * off * off;
    }
    return sum;
}

double OneHand::chanceOfAtLeastOne(std::size_t outcome, std::int64_t hands) const
{
    return -std::expm1(static_cast<double>(hands) * std::log1p(-chance[outcome]));
}

std::optional<double> OneHand::handsUntilTheEdgeShows() const
{
    const double edge = returned() - 1;
    if (std::abs(edge) < 1e-12)
        return std::nullopt;
    return std::pow(1.96 / edge, 2) * variance();
}

std::int64_t unitOf(const OneHand& hand, std::int64_t with)
{
    for (std::size_t outcome = 0; outcome < outcomeCount; ++outcome)
        with = hand.chance[outcome] > 0 ? std::gcd(with, hand.pays[outcome]) : with;
    return std::max<std::int64_t>(with, 1);
}

double cumulant(const OneHand& hand, std::int64_t unit, double slope)
{
    double largest = 0; // nothing wins nothing
    const auto power = [&](std::size_t outcome) {
        const std::int64_t units = hand.pays[outcome] / unit;
        return slope * static_cast<double>(units);
    };
    for (std::size_t outcome = 0; outcome < outcomeCount; ++outcome)
        largest = std::max(largest, hand.chance[outcome] > 0 ? power(outcome) : 0);
    double sum = 0;
    for (std::size_t outcome = 0; outcome < outcomeCount; ++outcome)
        sum += hand.chance[outcome] * std::exp(power(outcome) - largest);
    return largest + std::log(sum);
}

} // namespace quillet::odds
