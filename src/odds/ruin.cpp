#include "odds/ruin.h"

#include "odds/bad_input.h"
#include "odds/fourier.h"
#include "odds/tail_bound.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <complex>
#include <numeric>
#include <string>

namespace quillet::odds
{

namespace
{

constexpr double certain = 1 - 1e-12;

// Turns the chances of ruin in some rounds, by bankroll in units, into those in one more round.
// Larger bankrolls are safe. A new chance is the mean of the old ones after each win: a sum or,
// with many wins, a product of spectra.
class OneMoreRound
{
public:
    OneMoreRound(const Round& round, std::int64_t unit)
        : m_cost(static_cast<std::size_t>(round.cost / unit))
    {
        for (const Round::Win& win : round.wins)
            m_wins.push_back({static_cast<std::size_t>(win.credits / unit), win.chance});
    }

    // The additions for each chance of this number. The factor of a product is measured.
    [[nodiscard]] double steps(std::size_t size) const
    {
        return std::min(static_cast<double>(m_wins.size()),
                        50 * std::log2(static_cast<double>(size)));
    }

    void play(std::vector<double>& chances);

private:
    struct Win {
        std::size_t units;
        double chance;
    };

    void sum(std::vector<double>& chances);
    void multiply(std::vector<double>& chances);

    const std::size_t m_cost;
    std::vector<Win> m_wins; // ascending
    std::vector<double> m_before;
    Fourier<double> m_fourier{1};
    std::vector<std::complex<double>> m_values;
    std::vector<std::complex<double>> m_spectrum; // of the wins
};

void OneMoreRound::play(std::vector<double>& chances)
{
    if (steps(chances.size()) < static_cast<double>(m_wins.size()))
        multiply(chances);
    else
        sum(chances);
}

void OneMoreRound::sum(std::vector<double>& chances)
{
    constexpr std::size_t width = 24; // bankrolls at a time, in registers
    const std::size_t size = chances.size();
    m_before = chances;
    m_before.resize(size + width);
    for (std::size_t left = 0; left + m_cost < size; left += width) { // when the round is paid
        std::array<double, width> sums{};
        for (const auto& [units, chance] : m_wins) {
            if (left + units >= size)
                break;
            for (std::size_t i = 0; i < width; ++i)
                sums[i] += chance * m_before[left + units + i];
        }
        std::copy_n(sums.begin(), std::min(width, size - m_cost - left),
                    chances.begin() + static_cast<std::ptrdiff_t>(m_cost + left));
    }
}

void OneMoreRound::multiply(std::vector<double>& chances)
{
    const std::size_t size = std::bit_ceil(2 * chances.size());
    if (m_spectrum.size() != size) {
        m_fourier = Fourier<double>(size);
        m_spectrum.assign(size, 0);
        for (const auto& [units, chance] : m_wins)
            if (units <= size / 2)
                m_spectrum[(size + m_cost - units) % size] = chance / static_cast<double>(size);
        m_fourier.toSpectrum(m_spectrum);
    }
    m_values.assign(size, 0);
    std::ranges::copy(chances, m_values.begin());
    m_fourier.toSpectrum(m_values);
    std::ranges::transform(m_values, m_spectrum, m_values.begin(), Fourier<double>::product);
    m_fourier.fromSpectrum(m_values);
    for (std::size_t units = m_cost; units < chances.size(); ++units)
        chances[units] = m_values[units].real();
}

} // namespace

Ruin::Ruin(const Round& round, std::int64_t rounds, std::optional<std::int64_t> only,
           const WorkProgress& progress)
    : m_unit(std::gcd(round.unit, round.cost))
{
    const TailBound loss(round, -1, round.cost);
    const auto sizeFor = [&](std::int64_t played) {
        return static_cast<std::size_t>((loss.after(played) + round.cost) / m_unit + 1);
    };
    OneMoreRound oneMoreRound(round, m_unit);
    const std::size_t size = sizeFor(rounds);
    const auto wanted = static_cast<std::size_t>(only.value_or(0) / m_unit);
    std::vector<double> chances(static_cast<std::size_t>(round.cost / m_unit), 1.0);
    m_chances.fill(chances);
    const auto isCertain = [&] {
        return only && wanted < chances.size() && chances[wanted] > certain;
    };
    if (isCertain() || wanted >= size)
        return;
    if (oneMoreRound.steps(size) * static_cast<double>(size) * static_cast<double>(rounds) >
        maxSteps)
        throw BadInput("a bankroll takes too long for " + std::to_string(rounds) +
                       " hands with these pays; try a tenth of them");
    const std::int64_t block = std::max<std::int64_t>(rounds / 100, 1);
    std::size_t tenth = 0;
    for (std::int64_t played = 0; played < rounds && !isCertain(); ++played) {
        if (played % block == 0) {
            chances.resize(sizeFor(std::min(played + block, rounds)));
            if (progress)
                progress(static_cast<double>(played) / static_cast<double>(rounds));
        }
        oneMoreRound.play(chances);
        for (; tenth < tenths && (played + 1) * 10 >= rounds * static_cast<std::int64_t>(tenth + 1);
             ++tenth)
            m_chances[tenth] = chances;
    }
    std::fill(m_chances.begin() + static_cast<std::ptrdiff_t>(tenth), m_chances.end(), chances);
}

double Ruin::chance(std::int64_t bankroll, std::size_t tenth) const
{
    const std::vector<double>& chances = m_chances.at(tenth - 1);
    const auto units = static_cast<std::size_t>(bankroll / m_unit);
    return units < chances.size() ? std::clamp(chances[units], 0.0, 1.0) : 0;
}

std::int64_t Ruin::bankrollFor(double chance) const
{
    const std::vector<double>& chances = m_chances.back();
    const auto enough =
        std::ranges::find_if(chances, [chance](double one) { return one <= chance; });
    return (enough - chances.begin()) * m_unit;
}

} // namespace quillet::odds
