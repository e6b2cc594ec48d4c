#pragma once

#include "assets/make/pictures/canvas.h"
#include "assets/make/pictures/noise.h"

#include <optional>

namespace quillet::artwork
{

// The character of one piece of wood. Widths are in the picture's units.
struct WoodLook {
    Colour light;
    Colour dark;
    double bandWidth = 16; // distance between broad growth rings
    double figure = 1;     // waviness of the rings, 0 for straight lines
    double pores = 1;      // strength of the short dark pores
    std::optional<double> heart =
        std::nullopt; // position across the grain where the rings close into arches
    std::uint32_t seed = 1;
};

// An endless board: a colour for every point along and across its grain.
class Wood
{
public:
    explicit Wood(const WoodLook& look);

    [[nodiscard]] Colour at(double along, double across) const;

private:
    [[nodiscard]] double rings(double along, double across) const;
    [[nodiscard]] double pores(double along, double across, double ring) const;

    WoodLook m_look;
    Noise m_warp;
    Noise m_fibre;
};

} // namespace quillet::artwork
