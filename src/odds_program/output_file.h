#pragma once

#include <string>

namespace quillet::odds_program
{

// Writes the whole file or throws a std::runtime_error with the reason. An existing file, or the
// target of a link, is replaced once everything is written, and keeps its mode. A read-only file is
// not replaced. Pipes and devices are written directly; "-" is the standard output.
void writeFile(const std::string& path, const std::string& content);

// Whether writing the output would replace the input, which may be standard input.
[[nodiscard]] bool wouldReplace(const std::string& output, const std::string& input);

} // namespace quillet::odds_program
