#include "settings/numeric_text.h"

#include "faults/run_time_error.h"

#include <algorithm>
#include <limits>
#include <string>

namespace quillet
{

namespace
{

constexpr std::int64_t farOutside = 1'000'000'000'000'000'000;

// The digits 0.d1d2d3... times 10^point, without leading and trailing zeros; none for zero.
struct Decimal {
    std::string digits;
    std::int64_t point = 0;
};

bool areDigits(std::string_view text)
{
    return std::ranges::all_of(text, [](char c) { return c >= '0' && c <= '9'; });
}

std::string_view withoutBlanks(std::string_view text)
{
    const auto first = text.find_first_not_of(" \t");
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(" \t") - first + 1);
}

// Takes a sign off the front of the text and answers whether it was a minus.
bool takeMinus(std::string_view& text)
{
    const bool minus = text.starts_with('-');
    if (minus || text.starts_with('+'))
        text.remove_prefix(1);
    return minus;
}

std::optional<Decimal> parseMantissa(std::string_view text)
{
    const std::string_view whole = text.substr(0, text.find('.'));
    const std::string_view fraction = text.substr(std::min(whole.size() + 1, text.size()));
    if (!areDigits(whole) || !areDigits(fraction) || whole.size() + fraction.size() == 0)
        return std::nullopt;

    Decimal result{std::string(whole).append(fraction), static_cast<std::int64_t>(whole.size())};
    const std::size_t zeros = std::min(result.digits.find_first_not_of('0'), result.digits.size());
    result.digits.erase(0, zeros);
    result.digits.erase(result.digits.find_last_not_of('0') + 1);
    result.point -= static_cast<std::int64_t>(zeros);
    return result;
}

// An exponent too large to hold is cut to one that no length of a text can make up for.
std::optional<std::int64_t> parseExponent(std::string_view text)
{
    const bool minus = takeMinus(text);
    if (text.empty() || !areDigits(text))
        return std::nullopt;
    std::int64_t value = 0;
    for (const char digit : text)
        value = value < farOutside / 100 ? value * 10 + (digit - '0') : value;
    return minus ? -value : value;
}

std::int64_t rounded(const Decimal& decimal)
{
    if (decimal.digits.empty() || decimal.point < 0)
        return 0;
    if (decimal.point > 18)
        return farOutside;

    std::int64_t whole = 0;
    const auto places = static_cast<std::size_t>(decimal.point);
    for (std::size_t i = 0; i < places; ++i)
        whole = whole * 10 + (i < decimal.digits.size() ? decimal.digits[i] - '0' : 0);

    // Without trailing zeros the order of the texts is the order of the fractions.
    const std::string_view digits = decimal.digits;
    const std::string_view fraction = digits.substr(std::min(places, digits.size()));
    const bool up = fraction > "5" || (fraction == "5" && whole % 2 != 0);
    return up ? whole + 1 : whole;
}

std::optional<NumericValue> parseDecimal(std::string_view text)
{
    const bool minus = takeMinus(text);
    const std::size_t letter = text.find_first_of("eEdD");
    std::optional<Decimal> decimal = parseMantissa(text.substr(0, letter));
    if (!decimal)
        return std::nullopt;
    if (letter != std::string_view::npos) {
        const std::optional<std::int64_t> exponent = parseExponent(text.substr(letter + 1));
        if (!exponent)
            return std::nullopt;
        decimal->point += *exponent;
    }
    const std::int64_t size = rounded(*decimal);
    return NumericValue{minus ? -size : size, decimal->digits.empty()};
}

// The value of a digit of any base, or one that is too large for every base.
int digitValue(char c)
{
    if (c >= '0' && c <= '9')
        return c - '0';
    if (c >= 'a' && c <= 'f')
        return c - 'a' + 10;
    return c >= 'A' && c <= 'F' ? c - 'A' + 10 : 99;
}

std::optional<NumericValue> parsePattern(std::string_view digits, int base)
{
    if (digits.ends_with('&'))
        digits.remove_suffix(1);
    if (digits.empty())
        return std::nullopt;

    std::int64_t bits = 0;
    for (const char c : digits) {
        const int digit = digitValue(c);
        if (digit >= base)
            return std::nullopt;
        bits = std::min(bits * base + digit, farOutside / 100);
    }
    if (bits <= std::numeric_limits<std::uint32_t>::max())
        bits = static_cast<std::int32_t>(bits);
    return NumericValue{bits, bits == 0};
}

} // namespace

std::optional<NumericValue> parseNumber(std::string_view text)
{
    text = withoutBlanks(text);
    if (text.starts_with("&H") || text.starts_with("&h"))
        return parsePattern(text.substr(2), 16);
    if (text.starts_with("&O") || text.starts_with("&o"))
        return parsePattern(text.substr(2), 8);
    return parseDecimal(text);
}

NumericValue toNumber(std::string_view text)
{
    const std::optional<NumericValue> value = parseNumber(text);
    if (!value)
        throw typeMismatchError();
    return *value;
}

bool fitsInt32(const NumericValue& value)
{
    return value.rounded >= std::numeric_limits<std::int32_t>::min() &&
           value.rounded <= std::numeric_limits<std::int32_t>::max();
}

std::int16_t toInt16(const NumericValue& value)
{
    if (value.rounded < std::numeric_limits<std::int16_t>::min() ||
        value.rounded > std::numeric_limits<std::int16_t>::max())
        throw overflowError();
    return static_cast<std::int16_t>(value.rounded);
}

std::int32_t toInt32(const NumericValue& value)
{
    if (!fitsInt32(value))
        throw overflowError();
    return static_cast<std::int32_t>(value.rounded);
}

} // namespace quillet
