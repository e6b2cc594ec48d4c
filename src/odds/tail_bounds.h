#pragma once

#include <algorithm>
#include <limits>

namespace quillet::odds
{

// A tail of e^-30 is left out on each side. By Chernoff, a win of `high` or more has a chance of at
// most e^(hands * cumulant(slope) - slope * high) for every positive slope. The same holds for a
// win of `low` or less with a negative slope.
inline constexpr double tailExponent = 30;

// Error bound of every chance in a sitting or of ruin, from the cut tails and from rounding.
inline constexpr double sittingBound = 1e-9;

// The least of the Chernoff bounds, one for each slope, which all hold. It is found next to the
// saddle point, which need not be exact.
template <typename Bound>
double leastBound(const Bound& bound)
{
    double least = std::numeric_limits<double>::infinity();
    for (double slope = 1e-7; slope < 50; slope *= 1.05)
        least = std::min(least, bound(slope));
    return least;
}

} // namespace quillet::odds
