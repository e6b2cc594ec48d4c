#include "odds/sitting.h"

#include "engine/pay_table.h"

#include <algorithm>
#include <bit>
#include <cassert>
#include <cmath>
#include <complex>
#include <limits>
#include <numbers>
#include <numeric>
#include <utility>

namespace quillet
{

namespace
{

using Complex = std::complex<long double>;

constexpr double outside = 30; // e to the minus this is left outside on either side

std::int64_t unitOf(const OneHand& hand, std::int64_t with)
{
    for (std::size_t outcome = 0; outcome < outcomes; ++outcome)
        with = hand.chance[outcome] > 0 ? std::gcd(with, hand.pays[outcome]) : with;
    return std::max<std::int64_t>(with, 1);
}

// The logarithm of what e to the power of (slope times the win in units) is on average.
double cumulant(const OneHand& hand, std::int64_t unit, double slope)
{
    double largest = 0; // nothing wins nothing
    const auto power = [&](std::size_t outcome) {
        const std::int64_t units = hand.pays[outcome] / unit;
        return slope * static_cast<double>(units);
    };
    for (std::size_t outcome = 0; outcome < outcomes; ++outcome)
        largest = std::max(largest, hand.chance[outcome] > 0 ? power(outcome) : 0);
    double sum = 0;
    for (std::size_t outcome = 0; outcome < outcomes; ++outcome)
        sum += hand.chance[outcome] * std::exp(power(outcome) - largest);
    return largest + std::log(sum);
}

// The least value of a bound over all slopes; each of them holds.
template <typename Bound>
double leastBound(const Bound& bound)
{
    double least = std::numeric_limits<double>::infinity();
    for (double slope = 1e-7; slope < 50; slope *= 1.05)
        least = std::min(least, bound(slope));
    return least;
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

} // namespace

double OneHand::returned() const
{
    double sum = 0;
    for (std::size_t outcome = 0; outcome < outcomes; ++outcome)
        sum += chance[outcome] * static_cast<double>(pays[outcome]);
    return sum / wager;
}

double OneHand::variance() const
{
    double sum = 0;
    for (std::size_t outcome = 0; outcome < outcomes; ++outcome) {
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

Sitting::Sitting(const OneHand& hand, std::int64_t hands)
    : m_unit(unitOf(hand, 0)), m_paid(hands * wager)
{
    assert(hands >= 1 && hands <= mostHands);
    const auto count = static_cast<double>(hands);
    const double high = leastBound(
        [&](double slope) { return (count * cumulant(hand, m_unit, slope) + outside) / slope; });
    const double low = -leastBound(
        [&](double slope) { return (count * cumulant(hand, m_unit, -slope) + outside) / slope; });
    m_first = std::max<std::int64_t>(0, std::llround(std::floor(low)));
    const std::int64_t most = *std::ranges::max_element(hand.pays) / m_unit * hands;
    const std::int64_t last = std::min<std::int64_t>(most, std::llround(std::ceil(high)));
    const auto used = static_cast<std::size_t>(last - m_first + 1);
    const std::size_t size = std::bit_ceil(used);

    std::vector<Complex> roots(size);
    for (std::size_t i = 0; i < size; ++i)
        roots[i] =
            std::polar(1.0L, 2 * std::numbers::pi_v<long double> * static_cast<long double>(i) /
                                 static_cast<long double>(size));
    const auto turn = [&](std::uint64_t steps) { return roots[steps & (size - 1)]; };
    std::vector<Complex> values(size);
    for (std::size_t k = 0; k <= size / 2; ++k) {
        Complex one = 0;
        for (std::size_t outcome = 0; outcome < outcomes; ++outcome)
            one += static_cast<long double>(hand.chance[outcome]) *
                   std::conj(turn(k * static_cast<std::uint64_t>(hand.pays[outcome] / m_unit)));
        const long double level = std::abs(one);
        const Complex power =
            level == 0 ? 0
                       : std::polar(std::exp(static_cast<long double>(hands) * std::log(level)),
                                    std::remainder(static_cast<long double>(hands) * std::arg(one),
                                                   2 * std::numbers::pi_v<long double>));
        // The window begins at m_first.
        values[k] = power * turn(k * (static_cast<std::uint64_t>(m_first) % size));
        if (k != 0)
            values[size - k] = std::conj(values[k]);
    }
    transform(values, roots);
    m_chance.resize(used);
    for (std::size_t i = 0; i < used; ++i)
        m_chance[i] =
            std::max(0.0, static_cast<double>(values[i].real() / static_cast<long double>(size)));
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

std::array<double, 10> chancesOfRuin(const OneHand& hand, std::int64_t hands, std::int64_t bankroll)
{
    const std::int64_t unit = unitOf(hand, wager);
    const std::int64_t cost = wager / unit;
    // How many units are so many that the hands left lose them all too seldom to count.
    const auto safeFor = [&](std::int64_t left) {
        const double bound = leastBound([&](double slope) {
            const double each = cumulant(hand, unit, -slope) + slope * static_cast<double>(cost);
            return (static_cast<double>(left) * std::max(each, 0.0) + outside) / slope;
        });
        return std::llround(std::min(std::ceil(bound), static_cast<double>(left * cost))) + cost;
    };
    std::array<double, 10> ruined{};
    std::int64_t safe = safeFor(hands);
    if (bankroll / unit > safe)
        return ruined;
    // The chance of each number of units, up to where they are safe.
    std::vector<double> chance(static_cast<std::size_t>(safe) + 1);
    std::vector<double> next(chance.size());
    chance[static_cast<std::size_t>(bankroll / unit)] = 1;
    double lost = 0;
    std::size_t tenth = 0;
    const std::int64_t lookAgain = std::max<std::int64_t>(hands / 100, 1);
    const auto ruin = [&] {
        for (std::size_t units = 0; units < static_cast<std::size_t>(cost); ++units) {
            lost += chance[units];
            chance[units] = 0;
        }
    };
    ruin();
    for (std::int64_t played = 0; played < hands; ++played) {
        if (played % lookAgain == 0) {
            safe = std::min<std::int64_t>(safe, safeFor(hands - played));
            chance.resize(static_cast<std::size_t>(safe) + 1);
            next.resize(chance.size());
        }
        std::ranges::fill(next, 0.0);
        for (std::size_t outcome = 0; outcome < outcomes; ++outcome) {
            const double share = hand.chance[outcome];
            const std::int64_t step = hand.pays[outcome] / unit - cost;
            const auto from = static_cast<std::size_t>(std::max<std::int64_t>(cost, -step));
            const std::int64_t end = std::min(safe + 1, safe + 1 - step);
            if (share <= 0)
                continue;
            double* const to = next.data() + step;
            for (std::size_t units = from; std::cmp_less(units, end); ++units)
                to[units] += share * chance[units];
        }
        chance.swap(next);
        ruin();
        for (; tenth < 10 && (played + 1) * 10 >= hands * static_cast<std::int64_t>(tenth + 1);
             ++tenth)
            ruined[tenth] = lost;
    }
    return ruined;
}

} // namespace quillet
