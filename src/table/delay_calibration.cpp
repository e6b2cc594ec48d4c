#include "table/delay_calibration.h"

#include "table/counting_loop.h"

#include <algorithm>
#include <cmath>

namespace quillet
{

namespace
{

constexpr double flightRound = 0.4; // minimum seconds of a round
constexpr double bannerRound = 0.3; // below this, the banner is measured again
constexpr double bannerSlow = 0.5;  // below this, the banner's delay still rises
constexpr std::int32_t step = 10;

// Two or three are enough if the times of the rounds agree.
constexpr int maxRounds = 6;

// A wrong cost must not overflow the delay.
constexpr int maxSteps = 100'000;

// Looks for the first of the delays start, start + 10, ... whose round takes at least the limit.
class Search
{
public:
    Search(std::int32_t& delay, double limit, const RoundCost& cost)
        : m_delay(delay), m_start(delay), m_limit(limit),
          m_base(cost.seconds + cost.secondsPerUnit * delay), m_stepCost(cost.secondsPerUnit * step)
    {
    }

    // Sets the delay found and returns how long its round takes, measured or estimated.
    double run(const MeasureRound& measure)
    {
        for (int round = 0; round < maxRounds && m_enough != m_tooFew + 1; ++round) {
            const int steps = likelySteps(m_enough - 1);
            m_delay = m_start + steps * step;
            const std::optional<double> took = measure(m_delay);
            if (!took)
                break;
            note(steps, *took);
        }
        const int steps = likelySteps(m_enough);
        m_delay = m_start + steps * step;
        return m_enough == steps ? m_enoughTook : m_base + m_stepCost * steps;
    }

private:
    void note(int steps, double took)
    {
        // Longer rounds are measured more exactly, so the longest one gives the cost of a step.
        if (steps > 0 && took > m_base)
            m_stepCost = (took - m_base) / steps;
        if (took < m_limit) {
            m_tooFew = steps;
        } else {
            m_enough = steps;
            m_enoughTook = took;
        }
    }

    // The number of steps estimated from the cost, above those known to be too few, at most max.
    [[nodiscard]] int likelySteps(int max) const
    {
        const double missing = std::max(m_limit - m_base, 0.0);
        const double steps = m_stepCost > 0.0 ? std::ceil(missing / m_stepCost) : 0.0;
        return std::max(static_cast<int>(std::min<double>(steps, max)), m_tooFew + 1);
    }

    std::int32_t& m_delay;
    const std::int32_t m_start;
    const double m_limit;
    const double m_base; // seconds of a round without a step
    double m_stepCost;   // seconds that a step adds to it
    int m_tooFew = -1;
    int m_enough = maxSteps + 1; // no round took long enough so far
    double m_enoughTook = 0.0;
};

} // namespace

void calibrateFlight(std::int32_t& delay, const RoundCost& cost, const MeasureRound& measure)
{
    delay = 0;
    Search(delay, flightRound, cost).run(measure);
}

void calibrateBanner(std::int32_t& delay, const RoundCost& cost, const MeasureRound& measure)
{
    // The stored start value may be anything. If it is negative, or far more than a round can take,
    // the result is known without measuring.
    if (delay < 0 && cost.seconds < bannerRound)
        delay %= step;
    if (cost.seconds + cost.secondsPerUnit * delay > 2 * bannerSlow && delay <= maxDelay)
        return;
    if (Search(delay, bannerRound, cost).run(measure) < bannerSlow)
        delay += step;
}

} // namespace quillet
