#pragma once

#include <QString>

namespace quillet::artwork
{

// Draws all pictures and writes them to `pics`, `frame`, `icons` and `pointer` in the folder.
// Throws std::runtime_error if a file cannot be written.
void writePictures(const QString& folder);

} // namespace quillet::artwork
