#pragma once

#include <QString>

namespace quillet
{

struct HelpFile {
    QString html;
    QString problem; // a sentence for the reader; empty if the file could be read
};

// Reads the help as UTF-8. It opens only regular files and reads at most 4 MB, so a pipe or a wrong
// file cannot block the program.
[[nodiscard]] HelpFile readHelpFile(const QString& path);

} // namespace quillet
