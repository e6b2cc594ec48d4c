#pragma once

#include <algorithm>
#include <string_view>

namespace quillet::odds
{

// The text without these characters at its ends.
[[nodiscard]] constexpr std::string_view trimmed(std::string_view text, std::string_view ends)
{
    text = text.substr(0, text.find_last_not_of(ends) + 1);
    text.remove_prefix(std::min(text.find_first_not_of(ends), text.size()));
    return text;
}

} // namespace quillet::odds
