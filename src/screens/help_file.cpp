#include "screens/help_file.h"

#include <QFile>
#include <QFileInfo>
#include <QStringDecoder>

namespace quillet
{

namespace
{

constexpr qint64 sizeLimit = qint64(4) * 1024 * 1024;

QString unreadable(const QString& reason)
{
    return "<h1>No help to show</h1><p>The help file " + reason.toHtmlEscaped() + "</p>";
}

} // namespace

QString readHelpFile(const QString& path)
{
    const QFileInfo info(path);
    if (!info.exists())
        return unreadable("is missing. It should be here: " + path);
    if (!info.isFile())
        return unreadable("is not a regular file: " + path);

    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return unreadable("cannot be read (" + file.errorString() + "): " + path);
    const QByteArray bytes = file.read(sizeLimit + 1);
    if (bytes.size() > sizeLimit)
        return unreadable("is too large (more than 4 MB): " + path);
    if (bytes.isEmpty())
        return unreadable("is empty: " + path);

    // Stateless, so that a character cut off at the end of the file is an error, too.
    QStringDecoder utf8(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    QString html = utf8(bytes);
    if (utf8.hasError())
        return unreadable("is not UTF-8 text: " + path);
    return html;
}

} // namespace quillet
