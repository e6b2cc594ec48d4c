#pragma once

#include <cstdint>

namespace quillet::artwork
{

// Smooth noise with a fixed seed: the same numbers on every machine and every run.
class Noise
{
public:
    explicit Noise(std::uint32_t seed) : m_seed(seed) {}

    // About -1 to 1, features one unit wide.
    [[nodiscard]] double at(double x, double y) const;

    // Sum of octaves, each half as wide and half as strong as the one before.
    [[nodiscard]] double layered(double x, double y, int octaves) const;

    // 0 to 1, independent for neighbouring cells.
    [[nodiscard]] double cell(int x, int y) const;

private:
    std::uint32_t m_seed;
};

} // namespace quillet::artwork
