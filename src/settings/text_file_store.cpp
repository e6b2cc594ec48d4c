#include "settings/text_file_store.h"

#include "faults/run_time_error.h"

#include <QDir>
#include <QFileInfo>
#include <QLockFile>
#include <QScopeGuard>

#include <cerrno>
#include <chrono>
#include <cstdio>
#include <cstring>
#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

namespace quillet
{

namespace
{

using namespace std::chrono_literals;

constexpr qint64 largestFile = 1'048'576;

// A write takes milliseconds. Who waits is the player, with a closing window.
constexpr auto lockPatience = 2s;
constexpr auto staleLock = 10s;

enum class FileState { missing, good, broken, unreadable };

struct StoredFile {
    FileState state = FileState::missing;
    SettingsText text; // empty unless good
    QString trouble;   // why it is unreadable
};

[[noreturn]] void fail(const QString& path, const QString& cause)
{
    const QString text = QStringLiteral("The settings cannot be stored in %1: %2");
    throw RunTimeError(text.arg(path, cause).toStdString());
}

// Relative folders count as not set: they would move with the current directory.
QString absoluteFolder(const char* variable)
{
    const QString folder = qEnvironmentVariable(variable);
    return QDir::isAbsolutePath(folder) ? folder : QString();
}

QString userConfigFolder()
{
    if (QString folder = absoluteFolder("XDG_CONFIG_HOME"); !folder.isEmpty())
        return folder;
    QString home = absoluteFolder("HOME");
    if (const passwd* user = home.isEmpty() ? ::getpwuid(::getuid()) : nullptr)
        home = QFile::decodeName(user->pw_dir);
    return home + "/.config";
}

// The file that a link at this path leads to, present or not. Links in a circle stay links.
QString behindLinks(const QString& path)
{
    QFileInfo file(path);
    for (int depth = 0; depth < 40 && file.isSymLink(); ++depth)
        file.setFile(file.symLinkTarget());
    return file.filePath();
}

// Another one for every state of the file, empty where there is none.
QString stampOf(const QString& path)
{
    struct stat file {
    };
    if (::stat(QFile::encodeName(path), &file) != 0)
        return {};
    return QStringLiteral("%1 %2 %3 %4.%5")
        .arg(path)
        .arg(file.st_ino)
        .arg(file.st_size)
        .arg(file.st_ctim.tv_sec)
        .arg(file.st_ctim.tv_nsec);
}

StoredFile load(const QString& path)
{
    const QFileInfo info(path);
    if (!info.exists() && !info.isSymLink())
        return {};
    // Opening a pipe would wait for its other end.
    if (!info.isFile())
        return {FileState::unreadable, {}, QStringLiteral("It is not a file")};
    if (info.size() > largestFile)
        return {FileState::broken, {}, {}};

    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {FileState::unreadable, {}, file.errorString()};
    const QByteArray bytes = file.read(largestFile + 1);
    if (file.error() != QFileDevice::NoError)
        return {FileState::unreadable, {}, file.errorString()};
    std::optional<SettingsText> text;
    if (bytes.size() <= largestFile)
        text = SettingsText::parse({bytes.data(), static_cast<std::size_t>(bytes.size())});
    if (!text)
        return {FileState::broken, {}, {}};
    return {FileState::good, std::move(*text), {}};
}

// Folders of the user's configuration are for the user's eyes.
bool makeFolder(const QString& path)
{
    if (QFileInfo(path).isDir())
        return true;
    const QString parent = QFileInfo(path).path();
    if (parent == path || !makeFolder(parent))
        return false;
    const auto ownerOnly = QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner;
    return QDir().mkdir(path, ownerOnly) || QFileInfo(path).isDir();
}

void take(QLockFile& lock, const QString& path)
{
    lock.setStaleLockTime(staleLock);
    if (lock.tryLock(lockPatience))
        return;
    if (lock.error() == QLockFile::LockFailedError)
        fail(path, QStringLiteral("Another program is holding its lock"));
    fail(path, lock.error() == QLockFile::PermissionError
                   ? QStringLiteral("The folder does not allow it")
                   : QStringLiteral("Its lock cannot be written; the disk may be full"));
}

// Gives the file the first free of its spare names, and answers it; empty when that fails.
QString setAside(const QString& path)
{
    for (int number = 1; number < 1000; ++number) {
        const QString name = path + ".bad" + (number == 1 ? QString() : QString::number(number));
        if (!QFileInfo(name).isSymLink() && !QFileInfo::exists(name))
            return QFile::rename(path, name) ? name : QString();
    }
    return {};
}

// What a save writes first. One that was killed leaves it behind for the next to write over.
QString unfinished(const QString& path)
{
    return path + ".new";
}

// The new file is safe on the disk before the old one is touched.
void replace(const QString& path, const std::string& bytes, bool keepOld)
{
    QFile file(unfinished(path));
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
        fail(path, file.errorString());
    const auto removed = qScopeGuard([&file] { file.remove(); });
    if (QFile::exists(path))
        file.setPermissions(QFile::permissions(path));
    // A nearly full disk takes a part first; only the next write tells what is wrong.
    auto rest = QByteArrayView(bytes.data(), static_cast<qsizetype>(bytes.size()));
    while (!rest.isEmpty()) {
        const qint64 written = file.write(rest.data(), rest.size());
        if (written <= 0)
            fail(path, file.errorString());
        rest = rest.sliced(written);
    }
    if (!file.flush())
        fail(path, file.errorString());
    // A file system may report a full disk this late; one that cannot synchronise says EINVAL.
    if (::fsync(file.handle()) != 0 && errno != EINVAL)
        fail(path, QString::fromLocal8Bit(std::strerror(errno)));

    QString aside;
    if (keepOld) {
        aside = setAside(path);
        if (aside.isEmpty())
            fail(path, QStringLiteral("The damaged file there cannot be kept aside"));
    }
    if (::rename(QFile::encodeName(file.fileName()), QFile::encodeName(path)) != 0) {
        const QString cause = QString::fromLocal8Bit(std::strerror(errno));
        if (keepOld)
            QFile::rename(aside, path);
        fail(path, cause);
    }
}

} // namespace

TextFileStore::TextFileStore() : TextFileStore(userConfigFolder()) {}

TextFileStore::TextFileStore(QString configFolder) : m_configFolder(std::move(configFolder)) {}

std::string TextFileStore::readSetting(const std::string& application, const std::string& section,
                                       const std::string& key, const std::string& defaultText)
{
    const QString path = filePath(application);
    if (const QString stamp = stampOf(path); stamp != m_stamp) {
        m_text = load(path).text; // empty where there is no file
        m_stamp = stamp;
    }
    return m_text.value(section, key).value_or(defaultText);
}

std::string TextFileStore::place(const std::string& application)
{
    return filePath(application).toStdString();
}

void TextFileStore::writeSetting(const std::string& application, const std::string& section,
                                 const std::string& key, const std::string& text)
{
    const QString path = filePath(application);
    // What is stored already needs no disk: closing the window mostly changes nothing.
    if (load(path).text.value(section, key) == text && !QFile::exists(unfinished(path)))
        return;
    if (!makeFolder(QFileInfo(path).path()))
        fail(path, QStringLiteral("The folder cannot be made"));

    QLockFile lock(path + ".lock");
    take(lock, path);
    StoredFile stored = load(path);
    if (stored.state == FileState::unreadable)
        fail(path, stored.trouble);
    stored.text.setValue(section, key, text);
    const std::string bytes = stored.text.bytes();
    if (bytes.size() > largestFile)
        fail(path, QStringLiteral("The text is too long"));
    replace(path, bytes, stored.state == FileState::broken);
}

QString TextFileStore::filePath(const std::string& application) const
{
    // Dots are encoded too, or "." and ".." would lead elsewhere; no other name becomes "%".
    QString folder = QString::fromUtf8(
        QByteArray::fromStdString(application).toPercentEncoding(QByteArray(), "."));
    if (folder.isEmpty())
        folder = QStringLiteral("%");
    return behindLinks(m_configFolder + '/' + folder + "/settings.ini");
}

} // namespace quillet
