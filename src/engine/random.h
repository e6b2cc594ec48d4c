#pragma once

#include "engine/deck.h"

#include <array>
#include <cstdint>
#include <functional>

namespace quillet
{

// The generator xoshiro256**, with the clock mixed into its 256 bits of state at each reseed. With
// the same seed and the same clock readings it gives the same draws.
class BlendingRandom : public RandomSource
{
public:
    explicit BlendingRandom(std::function<std::uint64_t()> clock, std::uint64_t seed = 0);

    void reseed() override;
    [[nodiscard]] double next() override;

private:
    std::uint64_t advance();

    std::function<std::uint64_t()> m_clock;
    std::array<std::uint64_t, 4> m_state{};
};

// The time of day in microseconds, a clock for BlendingRandom.
[[nodiscard]] std::uint64_t timeOfDay();

} // namespace quillet
