#pragma once

#include <QString>

namespace quillet
{

struct HelpFile {
    QString html;
    QString problem; // a sentence for the reader; empty when the file could be read
};

// Reads the help as UTF-8. Only a regular file of a sensible size is opened, so that neither a
// pipe nor a mistaken name can hold up the program.
[[nodiscard]] HelpFile readHelpFile(const QString& path);

} // namespace quillet
