#pragma once

#include "assets/make/pictures/canvas.h"
#include "assets/make/pictures/noise.h"

namespace quillet::artwork
{

// Fulled wool: no weave to be seen, only short hairs in every direction.
class Felt
{
public:
    Felt(const Color& color, std::uint32_t seed) : m_color(color), m_noise(seed) {}

    [[nodiscard]] Color at(double x, double y) const;

private:
    Color m_color;
    Noise m_noise;
};

// Writing-table leather: small pebbles with creases between them, lit from above.
class Leather
{
public:
    Leather(const Color& color, std::uint32_t seed) : m_color(color), m_noise(seed) {}

    [[nodiscard]] Color at(double x, double y) const;

private:
    [[nodiscard]] double height(double x, double y) const;

    Color m_color;
    Noise m_noise;
};

} // namespace quillet::artwork
