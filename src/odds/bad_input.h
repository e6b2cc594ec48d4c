#pragma once

#include <cstddef>
#include <stdexcept>
#include <string>
#include <string_view>

namespace quillet::odds
{

// Invalid arguments, hand, chart or pay table; what() says where and why.
class BadInput : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

// The text as a message may quote it: at most one line, with control characters and invalid UTF-8
// as escapes such as \x1b.
[[nodiscard]] std::string printable(std::string_view text, std::size_t maxLetters = 60);

} // namespace quillet::odds
