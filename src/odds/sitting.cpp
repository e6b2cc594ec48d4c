#include "odds/sitting.h"

#include "engine/pay_table.h"
#include "odds/bad_input.h"

#include <algorithm>
#include <bit>
#include <cassert>
#include <cmath>
#include <complex>
#include <limits>
#include <numbers>
#include <numeric>
#include <utility>

namespace quillet::odds
{

namespace
{

using Complex = std::complex<long double>;

constexpr double tailExponent = 30;          // a tail of e^-30 is left out on each side
constexpr std::size_t maxResults = 1U << 22; // 300 MB
constexpr double maxSteps = 3e11;            // hands times units: some minutes

// The largest number of credits that divides all pays and `with`.
std::int64_t unitOf(const OneHand& hand, std::int64_t with)
{
    for (std::size_t outcome = 0; outcome < outcomeCount; ++outcome)
        with = hand.chance[outcome] > 0 ? std::gcd(with, hand.pays[outcome]) : with;
    return std::max<std::int64_t>(with, 1);
}

// The cumulant generating function of one hand's win in units: the logarithm of the mean of
// e^(slope * win).
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

// The results, in units won, that are computed.
struct Window {
    std::int64_t first = 0;
    std::int64_t last = 0;

    [[nodiscard]] std::size_t size() const { return static_cast<std::size_t>(last - first + 1); }
};

// By Chernoff, a win of `high` or more has a chance of at most e^(hands * K(slope) - slope * high),
// where K is the cumulant; with a negative slope the same holds for a win of `low` or less.

Window windowOf(const OneHand& hand, std::int64_t unit, std::int64_t hands)
{
    const auto count = static_cast<double>(hands);
    const double high = leastBound(
        [&](double slope) { return (count * cumulant(hand, unit, slope) + tailExponent) / slope; });
    const double low = -leastBound([&](double slope) {
        return (count * cumulant(hand, unit, -slope) + tailExponent) / slope;
    });
    const std::int64_t most = *std::ranges::max_element(hand.pays) / unit * hands;
    return {std::max<std::int64_t>(0, std::llround(std::floor(low))),
            std::min<std::int64_t>(most, std::llround(std::ceil(high)))};
}

// Throws BadInput, with a number of hands that would be possible, when memory is too small.
Window possibleWindow(const OneHand& hand, std::int64_t unit, std::int64_t hands)
{
    const Window window = windowOf(hand, unit, hands);
    if (window.size() <= maxResults)
        return window;
    std::int64_t possible = hands / 2;
    while (windowOf(hand, unit, possible).size() > maxResults)
        possible /= 2;
    throw BadInput(std::to_string(hands) + " hands with these pays end in " +
                   std::to_string(window.size()) + " ways, too many for the memory; " +
                   std::to_string(possible) + " are possible");
}

std::vector<Complex> rootsOfOne(std::size_t size)
{
    std::vector<Complex> roots(size);
    for (std::size_t i = 0; i < size; ++i)
        roots[i] =
            std::polar(1.0L, 2 * std::numbers::pi_v<long double> * static_cast<long double>(i) /
                                 static_cast<long double>(size));
    return roots;
}

Complex power(const Complex& base, std::int64_t exponent)
{
    const long double level = std::abs(base);
    if (level == 0)
        return 0;
    const auto times = static_cast<long double>(exponent);
    return std::polar(std::exp(times * std::log(level)),
                      std::remainder(times * std::arg(base), 2 * std::numbers::pi_v<long double>));
}

// The discrete Fourier transform in place, of a size that is a power of 2.
void transform(std::vector<Complex>& values, const std::vector<Complex>& roots)
{
    const std::size_t size = values.size();
    for (std::size_t i = 1, j = 0; i < size; ++i) {
        std::size_t bit = size / 2;
        for (; (j & bit) != 0; bit /= 2)
            j ^= bit;
        j ^= bit;
        if (i < j)
            std::swap(values[i], values[j]);
    }
    for (std::size_t half = 1; half < size; half *= 2) {
        const std::size_t stride = size / (2 * half);
        for (std::size_t block = 0; block < size; block += 2 * half) {
            for (std::size_t i = 0; i < half; ++i) {
                const Complex& root = roots[i * stride];
                const Complex& odd = values[block + half + i];
                const Complex turned(odd.real() * root.real() - odd.imag() * root.imag(),
                                     odd.real() * root.imag() + odd.imag() * root.real());
                values[block + half + i] = values[block + i] - turned;
                values[block + i] += turned;
            }
        }
    }
}

// The chances of all results in the window. The characteristic function of the sum is the power of
// one hand's; the discrete Fourier transform turns it into chances.
std::vector<double> chancesIn(const Window& window, const OneHand& hand, std::int64_t unit,
                              std::int64_t hands, const WorkProgress& progress)
{
    const std::size_t size = std::bit_ceil(window.size());
    const std::vector<Complex> roots = rootsOfOne(size);
    const auto turn = [&](std::uint64_t steps) { return roots[steps & (size - 1)]; };
    std::vector<Complex> values(size);
    for (std::size_t k = 0; k <= size / 2; ++k) {
        Complex one = 0;
        for (std::size_t outcome = 0; outcome < outcomeCount; ++outcome)
            one += static_cast<long double>(hand.chance[outcome]) *
                   std::conj(turn(k * static_cast<std::uint64_t>(hand.pays[outcome] / unit)));
        // Moves the window's first result to index 0.
        const Complex shift = turn(k * (static_cast<std::uint64_t>(window.first) % size));
        values[k] = power(one, hands) * shift;
        if (k != 0)
            values[size - k] = std::conj(values[k]);
        if (progress && k % 10'000 == 0)
            progress(2.0 * static_cast<double>(k) / static_cast<double>(size));
    }
    transform(values, roots);
    std::vector<double> chances(window.size());
    for (std::size_t i = 0; i < chances.size(); ++i)
        chances[i] =
            std::max(0.0, static_cast<double>(values[i].real() / static_cast<long double>(size)));
    return chances;
}

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

Sitting::Sitting(const OneHand& hand, std::int64_t hands, const WorkProgress& progress)
    : m_unit(unitOf(hand, 0)), m_paid(hands * wager)
{
    assert(hands >= 1 && hands <= maxHands);
    const Window window = possibleWindow(hand, m_unit, hands);
    m_first = window.first;
    m_chance = chancesIn(window, hand, m_unit, hands, progress);
}

double Sitting::chanceOf(std::int64_t least, std::int64_t most) const
{
    double sum = 0;
    for (std::size_t i = 0; i < m_chance.size(); ++i)
        sum += netOf(i) >= least && netOf(i) <= most ? m_chance[i] : 0;
    return sum;
}

std::int64_t Sitting::quantile(double share) const
{
    double sum = 0;
    std::size_t i = 0;
    while (i + 1 < m_chance.size() && (sum += m_chance[i]) < share)
        ++i;
    return netOf(i);
}

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
