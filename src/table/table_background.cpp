#include "table/table_background.h"

#include "platform/file_exists.h"

#include <QDateTime>
#include <QFileInfo>

namespace quillet
{

QString TableBackground::versionOf(const QString& path) const
{
    const QFileInfo file(path);
    return QString("%1 %2 %3 %4")
        .arg(path)
        .arg(file.size())
        .arg(file.lastModified().toMSecsSinceEpoch())
        .arg(m_table.devicePixelRatioF());
}

void TableBackground::expect(const QString& path)
{
    if (!FileExists(path.toStdString()))
        return;
    m_expectedVersion = versionOf(path);
    m_expected = std::async(std::launch::async, loadPictureFile, path, m_table.devicePixelRatioF());
}

bool TableBackground::load(const QString& path)
{
    m_path = path;
    if (!FileExists(path.toStdString()))
        return false;
    const QString version = versionOf(path);
    if (version == m_version)
        return true;
    const bool expected = m_expected.valid() && version == m_expectedVersion;
    thePic = expected ? m_expected.get() : loadPictureFile(path, m_table.devicePixelRatioF());
    m_version = version;
    return true;
}

} // namespace quillet
