#pragma once

#include <string>

namespace quillet
{

// Whether there is a file with something in it. A folder is no file, and a path that cannot be
// examined leads to none; never raises an error.
[[nodiscard]] bool FileExists(const std::string& thePath);

} // namespace quillet
