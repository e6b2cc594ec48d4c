#pragma once

#include <string>

namespace quillet
{

// Writes a file whole or throws a std::runtime_error that says why not; a file of that name is
// replaced only when all is written. "-" is the standard output.
void writeFile(const std::string& path, const std::string& content);

} // namespace quillet
