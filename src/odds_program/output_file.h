#pragma once

#include <string>

namespace quillet::odds_program
{

// Writes a file whole or throws a std::runtime_error that says why not. A file of that name, or the
// one that a link of that name leads to, is replaced only when all is written; its mode stays. A
// file that may not be written to is not replaced. Pipes and devices are written to as they are,
// and
// "-" is the standard output.
void writeFile(const std::string& path, const std::string& content);

// Whether writing the output would replace the input, which may be standard input.
[[nodiscard]] bool wouldReplace(const std::string& output, const std::string& input);

} // namespace quillet::odds_program
