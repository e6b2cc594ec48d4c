#pragma once

#include <cstddef>
#include <stdexcept>
#include <string>
#include <string_view>

namespace quillet::odds
{

// Arguments, a hand, a chart or a pay table that make no sense; what() says where and why.
class BadInput : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

// The text as a message may quote it: what a terminal would obey, and what is not UTF-8, as
// escapes such as \x1b, and no more than a line of it.
[[nodiscard]] std::string printable(std::string_view text, std::size_t maxLetters = 60);

} // namespace quillet::odds
