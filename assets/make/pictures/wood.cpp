#include "assets/make/pictures/wood.h"

#include <cmath>

namespace quillet::artwork
{

Wood::Wood(const WoodLook& look) : m_look(look), m_warp(look.seed), m_fibre(look.seed + 7919) {}

// A board is a flat cut through the rings around the heart of the tree. Far from the heart they
// are stripes; near it they close into long arches, because the trunk tapers.
double Wood::rings(double along, double across) const
{
    double depth = across;
    if (m_look.heart) {
        const double aside = across - *m_look.heart;
        const double below = 34 + 0.085 * along;
        depth = std::sqrt(aside * aside + below * below);
    }
    const double figure = m_look.figure;
    depth += figure * (15 * m_warp.layered(along / 330, across / 120, 2) +
                       2.2 * m_warp.at(along / 85, across / 21));
    return depth / m_look.bandWidth;
}

// Pores are cut lengthwise, too: dashes along the grain, mostly where a ring begins.
double Wood::pores(double along, double across, double ring) const
{
    constexpr double cellLength = 8;
    constexpr double cellWidth = 0.8;
    const double lane = across / cellWidth + 0.9 * m_warp.at(along / 60, across / 9);
    const int row = static_cast<int>(std::floor(lane));
    const double position = along / cellLength + m_fibre.cell(row, 1 << 20);
    const int column = static_cast<int>(std::floor(position));
    const double chance = m_fibre.cell(column, row);
    const double early = 0.5 + 0.5 * std::cos(6.2831853 * ring);
    if (chance > 0.05 + 0.30 * early)
        return 0;
    const double length = 0.25 + 0.7 * m_fibre.cell(column + 5000, row);
    const double inCell = (position - column) / length;
    if (inCell > 1)
        return 0;
    const double inLane = 2 * (lane - row) - 1;
    return (1 - inLane * inLane) * 4 * inCell * (1 - inCell);
}

Colour Wood::at(double along, double across) const
{
    const double ring = rings(along, across);
    const double place = ring - std::floor(ring);
    // Spring wood is pale and darkens slowly, up to the sharp edge of the next spring.
    const double growth = place * place * (place < 0.93 ? 1.0 : (1 - place) / 0.07);
    const double year = m_warp.cell(static_cast<int>(std::floor(ring)), 77);
    double tone = 0.66 - 0.42 * growth * (0.45 + 0.8 * year) + 0.12 * (year - 0.5);
    tone += 0.16 * m_warp.at(along / 420 + 9.5, across / 46);
    tone += 0.09 * m_fibre.at(along / 95, across / 1.9);
    tone += 0.06 * m_fibre.at(along / 34, across / 0.75);
    // Shimmer across the grain, where the fibres rise and fall.
    tone += 0.06 * m_warp.at(along / 26 + across / 90, across / 105 + 40);
    const Colour wood = mix(m_look.dark, m_look.light, tone);
    return lit(wood, 1 - 0.26 * m_look.pores * pores(along, across, ring));
}

} // namespace quillet::artwork
