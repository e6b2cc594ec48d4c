#include "settings/user_folder.h"

#include <QDir>
#include <QFile>

#include <pwd.h>
#include <unistd.h>

namespace quillet
{

namespace
{

QString absoluteFolder(const char* variable)
{
    const QString folder = qEnvironmentVariable(variable);
    return QDir::isAbsolutePath(folder) ? folder : QString();
}

} // namespace

QString userFolder(const char* variable, const QString& below)
{
    if (QString folder = absoluteFolder(variable); !folder.isEmpty())
        return folder;
    QString home = absoluteFolder("HOME");
    if (const passwd* user = home.isEmpty() ? ::getpwuid(::getuid()) : nullptr)
        home = QFile::decodeName(user->pw_dir);
    return home + '/' + below;
}

} // namespace quillet
