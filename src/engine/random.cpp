#include "engine/random.h"

#include <bit>
#include <chrono>
#include <utility>

namespace quillet
{

namespace
{

// Spreads a small difference, such as one tick of the clock, over all 64 bits (splitmix64).
std::uint64_t scrambled(std::uint64_t value)
{
    value += 0x9e3779b97f4a7c15U;
    value = (value ^ (value >> 30)) * 0xbf58476d1ce4e5b9U;
    value = (value ^ (value >> 27)) * 0x94d049bb133111ebU;
    return value ^ (value >> 31);
}

} // namespace

BlendingRandom::BlendingRandom(std::function<std::uint64_t()> clock, std::uint64_t seed)
    : m_clock(std::move(clock))
{
    for (std::uint64_t& word : m_state) {
        seed = scrambled(seed);
        word = seed;
    }
}

void BlendingRandom::reseed()
{
    m_state[0] += scrambled(m_clock());
    // All zeros is the fixed point of the generator.
    if (m_state == std::array<std::uint64_t, 4>{})
        m_state[0] = 1;
    // The changed word reaches the draws only after a step. Without this one, the first draw after
    // a reseed would not depend on the time.
    advance();
}

double BlendingRandom::next()
{
    // The upper 53 bits, as many as a double holds.
    return static_cast<double>(advance() >> 11) * 0x1p-53;
}

std::uint64_t BlendingRandom::advance()
{
    auto& [s0, s1, s2, s3] = m_state;
    const std::uint64_t result = std::rotl(s1 * 5, 7) * 9;
    const std::uint64_t shifted = s1 << 17;
    s2 ^= s0;
    s3 ^= s1;
    s1 ^= s2;
    s0 ^= s3;
    s2 ^= shifted;
    s3 = std::rotl(s3, 45);
    return result;
}

std::uint64_t timeOfDay()
{
    using namespace std::chrono;
    const auto now = system_clock::now();
    return static_cast<std::uint64_t>(duration_cast<microseconds>(now - floor<days>(now)).count());
}

} // namespace quillet
