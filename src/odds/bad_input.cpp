#include "odds/bad_input.h"

#include <array>
#include <cstdint>

namespace quillet::odds
{

namespace
{

// Controls the terminal, ends the line or changes the direction of writing.
bool isControl(std::uint32_t code)
{
    return code < 0x20 || (code >= 0x7f && code < 0xa0) || code == 0x200e || code == 0x200f ||
           (code >= 0x2028 && code <= 0x202e) || (code >= 0x2066 && code <= 0x2069);
}

// Number of bytes of the UTF-8 character at the front; 0 if there is none that can be printed.
std::size_t printableBytes(std::string_view text)
{
    constexpr std::array<std::uint32_t, 5> leastCode{0, 0, 0x80, 0x800, 0x10000};
    const std::uint32_t first = static_cast<unsigned char>(text.front());
    const std::size_t length = first < 0x80 ? 1 : first < 0xe0 ? 2 : first < 0xf0 ? 3 : 4;
    if ((first >= 0x80 && first < 0xc0) || first > 0xf4 || text.size() < length)
        return 0;
    std::uint32_t code = length == 1 ? first : first & (0x7fU >> length);
    for (const char each : text.substr(1, length - 1)) {
        const std::uint32_t byte = static_cast<unsigned char>(each);
        if (byte >> 6U != 0b10)
            return 0;
        code = code << 6U | (byte & 0x3fU);
    }
    const bool valid =
        code >= leastCode[length] && code <= 0x10ffff && (code < 0xd800 || code > 0xdfff);
    return valid && !isControl(code) ? length : 0;
}

} // namespace

std::string printable(std::string_view text, std::size_t maxLetters)
{
    constexpr std::string_view digits = "0123456789abcdef";
    std::string shown;
    for (std::size_t letters = 0; !text.empty(); ++letters) {
        if (letters == maxLetters)
            return shown + "...";
        const std::size_t bytes = printableBytes(text);
        const auto first = static_cast<unsigned char>(text.front());
        if (bytes == 0)
            shown.append("\\x").append({digits[first / 16U], digits[first % 16U]});
        else
            shown += text.substr(0, bytes);
        text.remove_prefix(bytes == 0 ? 1 : bytes);
    }
    return shown;
}

} // namespace quillet::odds
