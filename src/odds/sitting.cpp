#include "odds/sitting.h"

#include "odds/bad_input.h"
#include "odds/fourier.h"
#include "odds/tail_bound.h"

#include <algorithm>
#include <bit>
#include <cassert>
#include <cmath>
#include <string>

namespace quillet::odds
{

namespace
{

// With long double the smallest chances are right, too.
using Transform = Fourier<long double>;
using Complex = Transform::Complex;

constexpr std::size_t maxResults = 1U << 22; // 240 MB

Complex power(Complex base, std::int64_t exponent)
{
    Complex result = 1;
    for (; exponent > 0; exponent /= 2) {
        if (exponent % 2 == 1)
            result = Transform::product(result, base);
        base = Transform::product(base, base);
    }
    return result;
}

} // namespace

Sitting::Sitting(const Round& round, std::int64_t rounds, const WorkProgress& progress)
    : m_unit(round.unit), m_paid(rounds * round.cost)
{
    assert(rounds >= 1 && rounds <= maxRounds);
    const TailBound win(round, 1, 0);
    const TailBound loss(round, -1, round.cost);
    const auto resultsOf = [&](std::int64_t some) {
        const std::int64_t least = some * round.cost - loss.after(some);
        return static_cast<std::size_t>((win.after(some) - least) / m_unit + 2);
    };
    if (resultsOf(rounds) > maxResults) {
        std::int64_t possible = rounds / 2;
        while (resultsOf(possible) > maxResults)
            possible /= 2;
        throw BadInput(std::to_string(rounds) + " hands with these pays end in " +
                       std::to_string(resultsOf(rounds)) + " ways, too many for the memory; " +
                       std::to_string(possible) + " are possible");
    }
    m_first = (m_paid - loss.after(rounds)) / m_unit;
    m_chance.resize(resultsOf(rounds));
    compute(round, rounds, progress);
}

// The characteristic function of the sum is the power of one round's. Results are kept modulo the
// size of the transform, which is large enough for all that are noticeable.
void Sitting::compute(const Round& round, std::int64_t rounds, const WorkProgress& progress)
{
    const std::size_t size = std::bit_ceil(m_chance.size());
    const Transform transform(size);
    std::vector<Complex> values(size);
    for (const auto& [credits, chance] : round.wins)
        values[static_cast<std::size_t>(credits / m_unit) & (size - 1)] += chance;
    transform.toSpectrum(values);
    for (std::size_t k = 0; k < size; ++k) {
        values[k] = power(values[k], rounds);
        if (progress && k % 10'000 == 0)
            progress(static_cast<double>(k) / static_cast<double>(size));
    }
    transform.fromSpectrum(values);
    for (std::size_t i = 0; i < m_chance.size(); ++i) {
        const Complex& sum = values[(static_cast<std::size_t>(m_first) + i) & (size - 1)];
        m_chance[i] =
            std::max(0.0, static_cast<double>(sum.real() / static_cast<long double>(size)));
    }
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
