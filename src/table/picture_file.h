#pragma once

#include <QImage>
#include <QSizeF>
#include <QString>

namespace quillet
{

// A picture kept at a resolution of its own, with the size it stands for in logical pixels.
struct LoadedPicture {
    QImage image;
    QSizeF logicalSize;

    [[nodiscard]] bool isNull() const { return image.isNull(); }
};

// A picture from a file: JPEG, GIF or bitmap. A file marked with a multiple of 96 dots an inch,
// such as 192, is kept at that many times its logical size; any other density counts as one pixel
// each. A JPEG that is kept finer than a display of this scale shows is decoded no finer, which
// takes a fraction of the time. Throws RunTimeError for what cannot be decoded or would take an
// unreasonable amount of memory.
[[nodiscard]] LoadedPicture loadPictureFile(const QString& path, double scale);

} // namespace quillet
