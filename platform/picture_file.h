#pragma once

#include <QImage>
#include <QString>

namespace quillet
{

// A picture from a file: JPEG, GIF or bitmap. The image carries its device pixel ratio: a file
// marked with a multiple of 96 dots an inch, such as 192, is kept at that many times its size;
// any other density counts as one pixel each. Throws RunTimeError for what cannot be decoded or
// would take an unreasonable amount of memory.
[[nodiscard]] QImage loadPictureFile(const QString& path);

} // namespace quillet
