#include "odds/bankroll.h"

#include "engine/pay_table.h"
#include "odds/bad_input.h"
#include "odds/tail_bounds.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <string>
#include <vector>

namespace quillet::odds
{

namespace
{

constexpr double maxSteps = 3e11; // hands times units: some minutes

// The chance of each number of units that a bankroll can have.
class Bankroll
{
public:
    Bankroll(const OneHand& hand, std::int64_t hands, std::int64_t credits)
        : m_hand(hand), m_unit(unitOf(hand, wager)), m_cost(wager / m_unit)
    {
        const std::int64_t units = credits / m_unit;
        if (units < m_cost)
            m_lost = 1;
        else if (units <= (m_safe = safeFor(hands)))
            start(units, hands);
    }

    // Whether the remaining hands can no longer change the result noticeably.
    [[nodiscard]] bool isDecided(std::int64_t handsLeft)
    {
        if (std::accumulate(m_chance.begin(), m_chance.end(), 0.0) < sittingBound / 100)
            return true;
        m_safe = std::min(m_safe, safeFor(handsLeft));
        m_chance.resize(static_cast<std::size_t>(m_safe) + 1);
        m_next.resize(m_chance.size());
        return false;
    }

    void playHand();

    [[nodiscard]] double lost() const { return m_lost; }

private:
    // The smallest bankroll in units whose chance of ruin in the remaining hands is negligible:
    // Chernoff's bound on the loss, by Doob's maximal inequality for the highest loss on the way.
    [[nodiscard]] std::int64_t safeFor(std::int64_t left) const
    {
        const double bound = leastBound([&](double slope) {
            const double each =
                cumulant(m_hand, m_unit, -slope) + slope * static_cast<double>(m_cost);
            return (static_cast<double>(left) * std::max(each, 0.0) + tailExponent) / slope;
        });
        return std::llround(std::min(std::ceil(bound), static_cast<double>(left * m_cost))) +
               m_cost;
    }

    void start(std::int64_t units, std::int64_t hands)
    {
        if (static_cast<double>(m_safe) * static_cast<double>(hands) > maxSteps)
            throw BadInput("a bankroll takes too long for " + std::to_string(hands) +
                           " hands with these pays; try a tenth of them");
        m_chance.resize(static_cast<std::size_t>(m_safe) + 1);
        m_next.resize(m_chance.size());
        m_chance[static_cast<std::size_t>(units)] = 1;
    }

    const OneHand& m_hand;
    const std::int64_t m_unit; // credits
    const std::int64_t m_cost; // units for a hand
    std::int64_t m_safe = 0;   // a bankroll above this counts as safe
    std::vector<double> m_chance;
    std::vector<double> m_next;
    double m_lost = 0;
};

void Bankroll::playHand()
{
    std::ranges::fill(m_next, 0.0);
    for (std::size_t outcome = 0; outcome < outcomeCount; ++outcome) {
        const double share = m_hand.chance[outcome];
        const std::int64_t step = m_hand.pays[outcome] / m_unit - m_cost;
        const std::int64_t first = std::max(m_cost, -step);
        const std::int64_t end = std::min(m_safe + 1, m_safe + 1 - step);
        if (share <= 0 || first >= end)
            continue;
        const double* const from = m_chance.data() + first;
        double* const to = m_next.data() + (first + step);
        for (std::int64_t i = 0; i < end - first; ++i)
            to[i] += share * from[i];
    }
    m_chance.swap(m_next);
    for (std::int64_t units = 0; units < m_cost; ++units) {
        m_lost += m_chance[static_cast<std::size_t>(units)];
        m_chance[static_cast<std::size_t>(units)] = 0;
    }
}

} // namespace

std::array<double, 10> chancesOfRuin(const OneHand& hand, std::int64_t hands, std::int64_t bankroll,
                                     const WorkProgress& progress)
{
    std::array<double, 10> ruined{};
    Bankroll credits(hand, hands, bankroll);
    const std::int64_t lookAgain = std::max<std::int64_t>(hands / 100, 1);
    std::size_t tenth = 0;
    for (std::int64_t played = 0; played < hands; ++played) {
        if (played % lookAgain == 0) {
            if (credits.isDecided(hands - played))
                break;
            if (progress)
                progress(static_cast<double>(played) / static_cast<double>(hands));
        }
        credits.playHand();
        for (; tenth < 10 && (played + 1) * 10 >= hands * static_cast<std::int64_t>(tenth + 1);
             ++tenth)
            ruined[tenth] = credits.lost();
    }
    std::fill(ruined.begin() + static_cast<std::ptrdiff_t>(tenth), ruined.end(), credits.lost());
    return ruined;
}

} // namespace quillet::odds
