#include "assets/make/pictures/cloth.h"

#include <cmath>

namespace quillet::artwork
{

Colour Felt::at(double x, double y) const
{
    const double slant = 0.8 * m_noise.at(x / 9, y / 9);
    const double hairs = m_noise.at((x + slant) / 0.7, y / 2.6) +
                         m_noise.at(x / 2.6 + 50, (y - slant) / 0.7) +
                         m_noise.at((x + y) / 1.1 + 90, (x - y) / 3.1);
    const double tufts = m_noise.layered(x / 7, y / 7 + 300, 2);
    const double wear = m_noise.layered(x / 160, y / 160 + 700, 2);
    return lit(m_colour, 1 + 0.055 * hairs + 0.035 * tufts + 0.05 * wear);
}

double Leather::height(double x, double y) const
{
    constexpr double pebble = 2.7;
    const double u = x / pebble + 0.35 * m_noise.at(x / 6, y / 6);
    const double v = y / pebble + 0.35 * m_noise.at(x / 6 + 80, y / 6);
    const int column = static_cast<int>(std::floor(u));
    const int row = static_cast<int>(std::floor(v));
    double nearest = 9;
    double second = 9;
    for (int i = column - 1; i <= column + 1; ++i)
        for (int j = row - 1; j <= row + 1; ++j) {
            const double dx = u - i - 0.15 - 0.7 * m_noise.cell(i, j);
            const double dy = v - j - 0.15 - 0.7 * m_noise.cell(i + 9000, j);
            const double distance = std::sqrt(dx * dx + dy * dy);
            second = std::min(second, std::max(nearest, distance));
            nearest = std::min(nearest, distance);
        }
    return std::min(second - nearest, 0.45) / 0.45;
}

Colour Leather::at(double x, double y) const
{
    const double here = height(x, y);
    const double slope = here - height(x - 0.5, y - 0.5);
    const double wear = m_noise.layered(x / 130, y / 130 + 700, 3);
    return lit(m_colour, 0.88 + 0.14 * here + 0.12 * slope + 0.07 * wear);
}

} // namespace quillet::artwork
