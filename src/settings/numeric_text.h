#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace quillet
{

// The number that a text stands for. It is worked out from the digits themselves, without a
// floating-point step, so it is exact however long the text is.
struct NumericValue {
    std::int64_t rounded = 0; // halves to even; beyond 10^18 only "far outside 32 bits" is kept
    bool isZero = true;       // of the value before rounding: 0.4 is not zero
};

// Reads "-12", "+1.5", ".5", "2.", "1e-3" (the exponent's letter may be d, too), and the bit
// patterns "&HFF" and "&O17" in either letter case; blanks and tabs around them do not count.
// Nothing when the text is none of these. No locale has a say.
//
// A bit pattern has up to 32 bits, the top one is the sign: "&HFFFFFFFF" is -1. A closing "&" is
// allowed.
[[nodiscard]] std::optional<NumericValue> parseNumber(std::string_view text);

// As parseNumber, but a text that is no number throws a type mismatch.
[[nodiscard]] NumericValue toNumber(std::string_view text);

[[nodiscard]] bool fitsInt32(const NumericValue& value);

// These throw an overflow when the rounded value does not fit.
[[nodiscard]] std::int16_t toInt16(const NumericValue& value);
[[nodiscard]] std::int32_t toInt32(const NumericValue& value);

} // namespace quillet
