#pragma once

#include "table/picture_file.h"

#include <QString>

#include <future>

namespace quillet
{

// The table's background picture, decoded for the scale of a display.
class TableBackground
{
public:
    // Begins to decode the picture that will likely be loaded, on a thread.
    void expect(const QString& path, double scale);
    // Returns whether there is a file at this path, which then is the background. It is read again
    // only when it has changed. Throws RunTimeError if it is not a picture.
    [[nodiscard]] bool load(const QString& path, double scale);
    // The same file for another scale.
    void reload(double scale) { (void)load(m_path, scale); }

    [[nodiscard]] const LoadedPicture& picture() const { return thePic; }

private:
    LoadedPicture thePic;
    QString m_path;
    QString m_version; // the file and the scale that thePic was read for
    QString m_expectedVersion;
    std::future<LoadedPicture> m_expected;
};

} // namespace quillet
