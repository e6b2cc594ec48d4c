#pragma once

#include <iosfwd>
#include <string>
#include <string_view>

namespace quillet::odds_program
{

// Text is UTF-8, with or without a byte order mark. A failure to open or read throws a
// std::runtime_error with the reason; text that is too long, or UTF-16, throws BadInput.

// Whether the path is "-" or "/dev/stdin".
[[nodiscard]] bool isStandardInput(std::string_view path);

// The name of a file in messages.
[[nodiscard]] std::string inputName(const std::string& path);

// The whole content of a file, pipe or device, up to 1 MB.
[[nodiscard]] std::string inputText(const std::string& path);

// Reads the next line of standard input, without its end, up to 4096 bytes. Returns false at the
// end of the input.
[[nodiscard]] bool takeLine(std::istream& standardInput, std::string& line);

} // namespace quillet::odds_program
