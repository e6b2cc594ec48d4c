#pragma once

#include <QString>

namespace quillet::artwork
{

// Draws every picture and writes it below the folder, in `pics`, `frame`, `icons` and `pointer`.
// Throws std::runtime_error where a file cannot be written.
void writePictures(const QString& folder);

} // namespace quillet::artwork
