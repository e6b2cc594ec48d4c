#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace quillet
{

// Reads a decimal number such as "-12", "+1.5", ".5", "2." or "1e-3", or a bit pattern such as
// "&HFF" or "&o17&". Blanks and tabs around it are ignored. Returns nothing for any other text.
// Independent of the locale.
//
// A bit pattern has up to 32 bits, and the top bit is the sign: "&HFFFFFFFF" is -1.
[[nodiscard]] std::optional<double> parseNumber(std::string_view text);

// As parseNumber, but throws a type mismatch instead of returning nothing.
[[nodiscard]] double toNumber(std::string_view text);

// Whether the number, rounded, fits.
[[nodiscard]] bool fitsInt32(double number);

// These round to the nearest integer, halves to even. They throw an overflow if it does not fit.
[[nodiscard]] std::int16_t toInt16(double number);
[[nodiscard]] std::int32_t toInt32(double number);

} // namespace quillet
