#pragma once

#include <algorithm>
#include <charconv>
#include <optional>
#include <string_view>
#include <vector>

namespace quillet::odds
{

// The text without these characters at its ends.
[[nodiscard]] constexpr std::string_view trimmed(std::string_view text, std::string_view ends)
{
    text = text.substr(0, text.find_last_not_of(ends) + 1);
    text.remove_prefix(std::min(text.find_first_not_of(ends), text.size()));
    return text;
}

// The parts between separators; one part more than there are separators.
[[nodiscard]] inline std::vector<std::string_view> split(std::string_view text, char separator)
{
    std::vector<std::string_view> parts;
    for (;;) {
        const std::size_t end = text.find(separator);
        parts.push_back(text.substr(0, end));
        if (end == std::string_view::npos)
            return parts;
        text.remove_prefix(end + 1);
    }
}

// The number that is the whole text.
template <typename Number>
[[nodiscard]] std::optional<Number> numberIn(std::string_view text)
{
    Number number{};
    const char* const last = text.data() + text.size();
    const auto [end, error] = std::from_chars(text.data(), last, number);
    return error == std::errc() && end == last ? std::optional(number) : std::nullopt;
}

} // namespace quillet::odds
