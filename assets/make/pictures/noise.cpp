#include "assets/make/pictures/noise.h"

#include <array>
#include <cmath>

namespace quillet::artwork
{

namespace
{

std::uint32_t mixed(int x, int y, std::uint32_t seed)
{
    std::uint32_t bits = seed + static_cast<std::uint32_t>(x) * 0x9e3779b1U;
    bits = (bits ^ (bits >> 15U)) * 0x85ebca77U;
    bits += static_cast<std::uint32_t>(y) * 0xc2b2ae3dU;
    bits = (bits ^ (bits >> 13U)) * 0x27d4eb2fU;
    return bits ^ (bits >> 16U);
}

double slope(std::uint32_t bits, double dx, double dy)
{
    constexpr double diagonal = 0.70710678118654752;
    constexpr std::array<std::array<double, 2>, 8> directions{{{1, 0},
                                                               {diagonal, diagonal},
                                                               {0, 1},
                                                               {-diagonal, diagonal},
                                                               {-1, 0},
                                                               {-diagonal, -diagonal},
                                                               {0, -1},
                                                               {diagonal, -diagonal}}};
    const auto& direction = directions[bits & 7U];
    return direction[0] * dx + direction[1] * dy;
}

double eased(double t)
{
    return t * t * t * (t * (t * 6 - 15) + 10);
}

} // namespace

double Noise::at(double x, double y) const
{
    const double left = std::floor(x);
    const double top = std::floor(y);
    const int column = static_cast<int>(left);
    const int row = static_cast<int>(top);
    const double dx = x - left;
    const double dy = y - top;
    const double a = slope(mixed(column, row, m_seed), dx, dy);
    const double b = slope(mixed(column + 1, row, m_seed), dx - 1, dy);
    const double c = slope(mixed(column, row + 1, m_seed), dx, dy - 1);
    const double d = slope(mixed(column + 1, row + 1, m_seed), dx - 1, dy - 1);
    const double u = eased(dx);
    const double upper = a + (b - a) * u;
    const double lower = c + (d - c) * u;
    // Gradient noise stays within 0.71; scaled to nearly the whole range.
    return (upper + (lower - upper) * eased(dy)) * 1.4;
}

double Noise::layered(double x, double y, int octaves) const
{
    double sum = 0;
    double strength = 1;
    for (int octave = 0; octave < octaves; ++octave) {
        sum += strength * at(x + 37.3 * octave, y + 11.9 * octave);
        strength /= 2;
        x *= 2;
        y *= 2;
    }
    return sum;
}

double Noise::cell(int x, int y) const
{
    return mixed(x, y, m_seed) / 4294967296.0;
}

} // namespace quillet::artwork
