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
    double bandWidth = 16; // from one broad growth ring to the next
    double figure = 1;     // how far the rings wander, 0 for ruled lines
    double pores = 1;      // how plainly the short dark pores show
    std::optional<double> heart =
        std::nullopt; // where across the grain the rings close into arches
    std::uint32_t seed = 1;
};

// Sawn wood without end: a colour for every place along and across its grain.
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
