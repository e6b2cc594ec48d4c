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

std::string_view withoutBlanks(std::string_view text)
{
    const auto first = text.find_first_not_of(" \t");
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(" \t") - first + 1);
}

std::optional<double> parseDecimal(std::string_view text)
{
    // from_chars takes a minus, but no plus, and the names of infinity and of no number.
    if (text.starts_with('+') && !text.starts_with("+-"))
        text.remove_prefix(1);
    if (text.find_first_not_of("+-.0123456789eE") != std::string_view::npos)
        return std::nullopt;
    double number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error == std::errc::invalid_argument || end != text.data() + text.size())
        return std::nullopt;
    // It leaves the number alone when that is too large or too close to zero.
    const bool tiny =
        text.find("e-") != std::string_view::npos || text.find("E-") != std::string_view::npos;
    if (error == std::errc::result_out_of_range)
        number = tiny ? Double::min() : Double::infinity();
    return number;
}

std::optional<double> parsePattern(std::string_view digits, int base)
{
    if (digits.ends_with('&'))
        digits.remove_suffix(1);
    std::uint32_t bits = 0;
    const auto [end, error] =
        std::from_chars(digits.data(), digits.data() + digits.size(), bits, base);
    if (error == std::errc::invalid_argument || end != digits.data() + digits.size())
        return std::nullopt;
    return error == std::errc::result_out_of_range ? Double::infinity()
                                                   : static_cast<std::int32_t>(bits);
}

template <typename Integer>
bool fits(double number)
{
    const double rounded = std::nearbyint(number);
    return rounded >= std::numeric_limits<Integer>::min() &&
           rounded <= std::numeric_limits<Integer>::max();
}

template <typename Integer>
Integer toInteger(double number)
{
    if (!fits<Integer>(number))
        throw overflowError();
    return static_cast<Integer>(std::nearbyint(number));
}

} // namespace

std::optional<double> parseNumber(std::string_view text)
{
    text = withoutBlanks(text);
    if (text.starts_with("&H") || text.starts_with("&h"))
        return parsePattern(text.substr(2), 16);
    if (text.starts_with("&O") || text.starts_with("&o"))
        return parsePattern(text.substr(2), 8);
    return parseDecimal(text);
}

double toNumber(std::string_view text)
{
    const std::optional<double> number = parseNumber(text);
    if (!number)
        throw typeMismatchError();
    return *number;
}

bool fitsInt32(double number)
{
    return fits<std::int32_t>(number);
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
