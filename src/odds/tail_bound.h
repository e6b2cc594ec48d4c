#pragma once

#include "odds/round.h"

#include <cstdint>
#include <utility>
#include <vector>

namespace quillet::odds
{

// Error bound of every chance in a sitting or of ruin, from the cut tails and from rounding.
inline constexpr double sittingBound = 1e-9;

// A bound of the credits that some rounds win or lose: more, at the end or on the way, has a chance
// of at most e^-30. By Chernoff and Doob, `high` or more has a chance of at most
// e^(rounds * cumulant - slope * high) for every slope above 0 whose cumulant is not below 0.
class TailBound
{
public:
    // Of sign * win + offset.
    TailBound(const Round& round, std::int64_t sign, std::int64_t offset);

    [[nodiscard]] std::int64_t after(std::int64_t rounds) const;

private:
    std::int64_t m_max; // in one round
    // Slopes, each with the logarithm of the mean of e^(slope * credits) for one round.
    std::vector<std::pair<double, double>> m_cumulants;
};

} // namespace quillet::odds
