#pragma once

#include <QImage>
#include <QSizeF>
#include <QString>

namespace quillet
{

// A picture in its own resolution, with its size in logical pixels.
struct LoadedPicture {
    QImage image;
    QSizeF logicalSize;

    [[nodiscard]] bool isNull() const { return image.isNull(); }
};

// A picture from a file: JPEG, GIF or bitmap. A file marked with a multiple of 96 dots an inch,
// such as 192, has that many pixels per logical pixel; any other density means one. JPEGs with more
// pixels than a display of this scale needs are decoded at reduced size, which takes a fraction of
// the time. Throws RunTimeError if the file cannot be decoded or would take too much memory.
[[nodiscard]] LoadedPicture loadPictureFile(const QString& path, double scale);

} // namespace quillet
