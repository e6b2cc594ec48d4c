#pragma once

#include "odds/round.h"
#include "odds/work_progress.h"

#include <cstdint>
#include <vector>

namespace quillet::odds
{

inline constexpr std::int64_t maxRounds = 10'000'000;

// The distribution of credits won less credits paid over a sitting of 1..maxRounds rounds, computed
// as a power of one round's characteristic function.
class Sitting
{
public:
    // Throws BadInput when memory is too small for all possible results.
    Sitting(const Round& round, std::int64_t rounds, const WorkProgress& progress = {});

    // The step between possible results, in credits.
    [[nodiscard]] std::int64_t unit() const { return m_unit; }
    // The chance of a result from `least` to `most`, both included.
    [[nodiscard]] double chanceOf(std::int64_t least, std::int64_t most) const;
    // The smallest result that at least this share of the sittings does not exceed.
    [[nodiscard]] std::int64_t quantile(double share) const;

private:
    void compute(const Round& round, std::int64_t rounds, const WorkProgress& progress);

    [[nodiscard]] std::int64_t netOf(std::size_t index) const
    {
        return (m_first + static_cast<std::int64_t>(index)) * m_unit - m_paid;
    }

    std::int64_t m_unit = 1;  // credits
    std::int64_t m_first = 0; // units won at index 0
    std::int64_t m_paid = 0;  // credits
    std::vector<double> m_chance;
};

} // namespace quillet::odds
