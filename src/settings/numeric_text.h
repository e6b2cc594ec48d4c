#pragma once

#include <cstdint>
#include <string_view>

namespace quillet
{

// Reads a decimal number such as "-12", "+1.5", ".5", "2." or "1e-3", or a bit pattern such as
// "&HFF" or "&o17&". Throws a type mismatch for any other text. Independent of the locale.
//
// A bit pattern has up to 32 bits, and the top bit is the sign: "&HFFFFFFFF" is -1.
[[nodiscard]] double toNumber(std::string_view text);

// These round to the nearest integer, halves to even. They throw an overflow if it does not fit.
[[nodiscard]] std::int16_t toInt16(double number);
[[nodiscard]] std::int32_t toInt32(double number);

} // namespace quillet
