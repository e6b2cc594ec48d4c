#pragma once

#include "table/picture_file.h"

#include <QString>
#include <QWidget>

#include <future>

namespace quillet
{

// The table's background picture, decoded for the scale of the table's display.
class TableBackground
{
public:
    explicit TableBackground(const QWidget& table) : m_table(table) {}

    // Begins to decode the picture that will likely be loaded, on a thread.
    void expect(const QString& path);
    // Returns whether there is a file at this path, which then is the background. It is read again
    // only when it has changed. Throws RunTimeError if it is not a picture.
    [[nodiscard]] bool load(const QString& path);
    // The same file, once the display has another scale.
    void reload() { (void)load(m_path); }

    [[nodiscard]] const LoadedPicture& picture() const { return thePic; }

private:
    // Identifies the content of the file and the scale.
    [[nodiscard]] QString versionOf(const QString& path) const;

    const QWidget& m_table;
    LoadedPicture thePic;
    QString m_path;
    QString m_version; // the file and the scale that thePic was read for
    QString m_expectedVersion;
    std::future<LoadedPicture> m_expected;
};

} // namespace quillet
