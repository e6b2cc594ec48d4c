#include "odds/tail_bound.h"

#include <algorithm>
#include <cmath>

namespace quillet::odds
{

TailBound::TailBound(const Round& round, std::int64_t sign, std::int64_t offset)
    : m_max(sign * (sign > 0 ? round.wins.back() : round.wins.front()).credits + offset)
{
    for (double slope = 1e-7; slope < 50; slope *= 1.1) {
        double sum = 0;
        for (const auto& [credits, chance] : round.wins)
            sum += chance * std::exp(slope * static_cast<double>(sign * credits + offset - m_max));
        m_cumulants.emplace_back(slope,
                                 std::max(slope * static_cast<double>(m_max) + std::log(sum), 0.0));
    }
}

std::int64_t TailBound::after(std::int64_t rounds) const
{
    constexpr double tailExponent = 30;
    auto least = static_cast<double>(rounds * m_max);
    for (const auto& [slope, cumulant] : m_cumulants)
        least = std::min(least, (static_cast<double>(rounds) * cumulant + tailExponent) / slope);
    return std::llround(std::ceil(least));
}

} // namespace quillet::odds
