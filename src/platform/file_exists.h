#pragma once

#include <string>

namespace quillet
{

// Whether this is a readable file that is not empty. Folders and invalid paths are no files. Never
// throws.
[[nodiscard]] bool FileExists(const std::string& thePath);

} // namespace quillet
