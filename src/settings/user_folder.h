#pragma once

#include <QString>

namespace quillet
{

// The folder that the variable names, or `below` in the home folder. A relative folder counts as
// not set, because it would change with the current directory.
[[nodiscard]] QString userFolder(const char* variable, const QString& below);

} // namespace quillet
