#include "odds/sitting.h"

#include "engine/pay_table.h"
#include "odds/bad_input.h"
#include "odds/tail_bounds.h"

#include <algorithm>
#include <bit>
#include <cassert>
#include <cmath>
#include <complex>
#include <numbers>
#include <string>
#include <utility>

namespace quillet::odds
{

namespace
{

using Complex = std::complex<long double>;

constexpr std::size_t maxResults = 1U << 22; // 300 MB

// The results, in units won, that are computed.
struct Window {
    std::int64_t first = 0;
    std::int64_t last = 0;

    [[nodiscard]] std::size_t size() const { return static_cast<std::size_t>(last - first + 1); }
};

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

} // namespace

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

} // namespace quillet::odds
