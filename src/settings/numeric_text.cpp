#include "settings/numeric_text.h"

#include "faults/run_time_error.h"

#include <charconv>
#include <cmath>
#include <limits>

namespace quillet
{

namespace
{

using Double = std::numeric_limits<double>;

double parseDecimal(std::string_view text)
{
    // from_chars accepts a minus but no plus, and also "inf" and "nan".
    if (text.starts_with('+') && !text.starts_with("+-"))
        text.remove_prefix(1);
    double number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (text.find_first_not_of("+-.0123456789eE") != std::string_view::npos ||
        error == std::errc::invalid_argument || end != text.data() + text.size())
        throw typeMismatchError();
    if (error != std::errc::result_out_of_range)
        return number;
    // Too large, or too close to zero.
    const bool tiny =
        text.find("e-") != std::string_view::npos || text.find("E-") != std::string_view::npos;
    return tiny ? Double::min() : Double::infinity();
}

double parsePattern(std::string_view digits, int base)
{
    if (digits.ends_with('&'))
        digits.remove_suffix(1);
    std::uint32_t bits = 0;
    const auto [end, error] =
        std::from_chars(digits.data(), digits.data() + digits.size(), bits, base);
    if (error == std::errc::invalid_argument || end != digits.data() + digits.size())
        throw typeMismatchError();
    return error == std::errc::result_out_of_range ? Double::infinity()
                                                   : static_cast<std::int32_t>(bits);
}

template <typename Integer>
Integer toInteger(double number)
{
    using Limits = std::numeric_limits<Integer>;
    const double rounded = std::nearbyint(number);
    if (rounded < Limits::min() || rounded > Limits::max())
        throw overflowError();
    return static_cast<Integer>(rounded);
}

} // namespace

double toNumber(std::string_view text)
{
    if (text.starts_with("&H") || text.starts_with("&h"))
        return parsePattern(text.substr(2), 16);
    if (text.starts_with("&O") || text.starts_with("&o"))
        return parsePattern(text.substr(2), 8);
    return parseDecimal(text);
}

std::int16_t toInt16(double number)
{
    return toInteger<std::int16_t>(number);
}

std::int32_t toInt32(double number)
{
    return toInteger<std::int32_t>(number);
}

} // namespace quillet
