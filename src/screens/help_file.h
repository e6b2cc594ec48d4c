#pragma once

#include <QString>

namespace quillet
{

// The help as HTML, or a page that says why it cannot be read. Opens only regular files and reads
// at most 4 MB, so a pipe or a wrong file cannot block the program.
[[nodiscard]] QString readHelpFile(const QString& path);

} // namespace quillet
