#pragma once

#include <cstdint>

namespace quillet
{

// Counts from 1 to delay * 1000, which is what the calibrated delays are made of; one pass takes
// about 9 ns. A delay of 0 or less counts nothing. Throws RunTimeError when the product leaves 32
// bits.
void countingLoop(std::int32_t delay);

} // namespace quillet
