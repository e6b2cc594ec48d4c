#pragma once

#include <algorithm>
#include <string>
#include <string_view>

namespace quillet
{

// The text with blanks behind or before it, at least this wide.
[[nodiscard]] inline std::string left(std::string_view text, std::size_t width)
{
    std::string cell(text);
    cell.resize(std::max(width, text.size()), ' ');
    return cell;
}

[[nodiscard]] inline std::string right(std::string_view text, std::size_t width)
{
    return std::string(width - std::min(width, text.size()), ' ') + std::string(text);
}

} // namespace quillet
