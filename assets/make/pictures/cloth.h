#pragma once

#include "assets/make/pictures/canvas.h"
#include "assets/make/pictures/noise.h"

namespace quillet::artwork
{

// Felted wool: short hairs in every direction, no visible weave.
class Felt
{
public:
    Felt(const Colour& colour, std::uint32_t seed) : m_colour(colour), m_noise(seed) {}

    [[nodiscard]] Colour at(double x, double y) const;

private:
    Colour m_colour;
    Noise m_noise;
};

// Desk leather: small bumps with creases between them, lit from above.
class Leather
{
public:
    Leather(const Colour& colour, std::uint32_t seed) : m_colour(colour), m_noise(seed) {}

    [[nodiscard]] Colour at(double x, double y) const;

private:
    [[nodiscard]] double height(double x, double y) const;

    Colour m_colour;
    Noise m_noise;
};

} // namespace quillet::artwork
