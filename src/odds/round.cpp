#include "odds/round.h"

#include "odds/bad_input.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numeric>
#include <string>

namespace quillet::odds
{

namespace
{

bool isNoticeable(double chance)
{
    return chance > 1e-20;
}

// The chances of consecutive wins.
struct Wins {
    std::int64_t first = 0; // units
    std::vector<double> chance{1.0};
};

using Shares = std::array<double, outcomeCount>;

Wins withOneMoreLine(const Wins& wins, const Shares& shares, const Pays& units)
{
    std::vector<double> chance(wins.chance.size() +
                               static_cast<std::size_t>(std::ranges::max(units)));
    for (std::size_t outcome = 0; outcome < outcomeCount; ++outcome) {
        const double share = shares[outcome];
        double* const to = chance.data() + units[outcome];
        for (std::size_t i = 0; share > 0 && i < wins.chance.size(); ++i)
            to[i] += share * wins.chance[i];
    }
    const auto first = std::ranges::find_if(chance, isNoticeable);
    const auto end = std::find_if(chance.rbegin(), chance.rend(), isNoticeable).base();
    return {wins.first + (first - chance.begin()), {first, end}};
}

} // namespace

double Round::meanWin() const
{
    double sum = 0;
    for (const Win& win : wins)
        sum += win.chance * static_cast<double>(win.credits);
    return sum;
}

double Round::variance() const
{
    double sum = 0;
    for (const Win& win : wins)
        sum += win.chance * std::pow((static_cast<double>(win.credits) - meanWin()) / wager, 2);
    return sum;
}

std::optional<double> Round::untilTheEdgeShows() const
{
    const double edge = (meanWin() - static_cast<double>(cost)) / wager;
    if (std::abs(edge) < 1e-12)
        return std::nullopt;
    return std::pow(1.96 / edge, 2) * variance();
}

Round roundOf(const Draws& draws, const Pays& pays, std::int64_t lines,
              const WorkProgress& progress)
{
    std::int64_t unit = 0;
    for (const std::int64_t pay : pays)
        unit = std::gcd(unit, pay);
    unit = std::max<std::int64_t>(unit, 1);
    Pays units{};
    std::ranges::transform(pays, units.begin(), [unit](std::int64_t pay) { return pay / unit; });
    std::vector<double> chances(static_cast<std::size_t>(lines * std::ranges::max(units)) + 1);
    if (static_cast<double>(draws.size() * outcomeCount * chances.size()) *
            static_cast<double>(lines) / 2 >
        maxSteps)
        throw BadInput(std::to_string(lines) + " lines take too long with these pays");
    double done = 0;
    for (const Draw& draw : draws) {
        Shares shares{};
        std::ranges::transform(draw.chances, shares.begin(), &Fraction::value);
        Wins wins; // of the lines so far, which are independent
        for (std::int64_t line = 0; line < lines; ++line)
            wins = withOneMoreLine(wins, shares, units);
        for (std::size_t i = 0; i < wins.chance.size(); ++i)
            chances[static_cast<std::size_t>(wins.first) + i] += draw.share() * wins.chance[i];
        if (progress)
            progress(++done / static_cast<double>(draws.size()));
    }
    // Millions of rounds would magnify a small error of the sum.
    const double sum = std::accumulate(chances.begin(), chances.end(), 0.0);
    Round round{lines * wager, unit};
    for (std::size_t i = 0; i < chances.size(); ++i)
        if (isNoticeable(chances[i]))
            round.wins.push_back({static_cast<std::int64_t>(i) * unit, chances[i] / sum});
    return round;
}

} // namespace quillet::odds
