#include "table/table_background.h"

#include "platform/file_exists.h"

#include <QDateTime>
#include <QFileInfo>

namespace quillet
{

namespace
{

QString versionOf(const QString& path, double scale)
{
    const QFileInfo file(path);
    return QString("%1 %2 %3 %4")
        .arg(path)
        .arg(file.size())
        .arg(file.lastModified().toMSecsSinceEpoch())
        .arg(scale);
}

} // namespace

void TableBackground::expect(const QString& path, double scale)
{
    if (!FileExists(path.toStdString()))
        return;
    m_expectedVersion = versionOf(path, scale);
    m_expected = std::async(std::launch::async, loadPictureFile, path, scale);
}

bool TableBackground::load(const QString& path, double scale)
{
    m_path = path;
    if (!FileExists(path.toStdString()))
        return false;
    const QString version = versionOf(path, scale);
    if (version == m_version)
        return true;
    const bool expected = m_expected.valid() && version == m_expectedVersion;
    thePic = expected ? m_expected.get() : loadPictureFile(path, scale);
    m_version = version;
    return true;
}

} // namespace quillet
