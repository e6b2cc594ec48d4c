#include "settings/text_file_store.h"

#include "faults/run_time_error.h"
#include "settings/settings_text.h"
#include "settings/user_folder.h"

#include <QDir>
#include <QFileInfo>
#include <QLockFile>
#include <QScopeGuard>

#include <cerrno>
#include <chrono>
#include <cstdio>
#include <cstring>
#include <sys/stat.h>
#include <unistd.h>

namespace quillet
{

namespace
{

using namespace std::chrono_literals;

constexpr qint64 maxFileBytes = 1'048'576;

// A save takes milliseconds, and the player is waiting for the window to close.
constexpr auto maxWaitForLock = 2s;
constexpr auto staleLock = 10s;

enum class FileState { missing, good, broken, unreadable };

struct StoredFile {
    FileState state = FileState::missing;
    SettingsText text; // empty unless good
    QString error;     // why it is unreadable
};

[[noreturn]] void fail(const QString& path, const QString& cause)
{
    const QString text = QStringLiteral("The settings cannot be stored in %1: %2");
    throw RunTimeError(text.arg(path, cause).toStdString());
}

// The file that a link at this path leads to, present or not. Links in a circle stay links.
QString behindLinks(const QString& path)
{
    QFileInfo file(path);
    for (int depth = 0; depth < 40 && file.isSymLink(); ++depth)
        file.setFile(file.symLinkTarget());
    return file.filePath();
}

StoredFile readFile(const QString& path)
{
    const QFileInfo info(path);
    if (!info.exists() && !info.isSymLink())
        return {};
    // Opening a pipe would wait for its other end.
    if (!info.isFile())
        return {FileState::unreadable, {}, QStringLiteral("It is not a file")};
    if (info.size() > maxFileBytes)
        return {FileState::broken, {}, {}};

    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {FileState::unreadable, {}, file.errorString()};
    const QByteArray bytes = file.read(maxFileBytes + 1);
    if (file.error() != QFileDevice::NoError)
        return {FileState::unreadable, {}, file.errorString()};
    std::optional<SettingsText> text;
    if (bytes.size() <= maxFileBytes)
        text = SettingsText::parse({bytes.data(), static_cast<std::size_t>(bytes.size())});
    if (!text)
        return {FileState::broken, {}, {}};
    return {FileState::good, std::move(*text), {}};
}

// Only the user may read the folders of the configuration.
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

void acquire(QLockFile& lock, const QString& path)
{
    lock.setStaleLockTime(staleLock);
    if (lock.tryLock(maxWaitForLock))
        return;
    if (lock.error() == QLockFile::LockFailedError)
        fail(path, QStringLiteral("Another program is holding its lock"));
    fail(path, lock.error() == QLockFile::PermissionError
                   ? QStringLiteral("The folder is not writable")
                   : QStringLiteral("Its lock cannot be written; the disk may be full"));
}

// Renames the file to its first free spare name and returns that; empty on failure.
QString moveAside(const QString& path)
{
    for (int number = 1; number < 1000; ++number) {
        const QString name = path + ".bad" + (number == 1 ? QString() : QString::number(number));
        if (!QFileInfo(name).isSymLink() && !QFileInfo::exists(name))
            return QFile::rename(path, name) ? name : QString();
    }
    return {};
}

// A save writes this file first. An interrupted save leaves it, and the next overwrites it.
QString temporaryName(const QString& path)
{
    return path + ".new";
}

// The new file is safe on the disk before the old one is touched.
void replace(const QString& path, const std::string& bytes, bool keepOld)
{
    QFile file(temporaryName(path));
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
        fail(path, file.errorString());
    const auto removed = qScopeGuard([&file] { file.remove(); });
    if (QFile::exists(path))
        file.setPermissions(QFile::permissions(path));
    // A nearly full disk first accepts part of the data; the next write reports the error.
    auto rest = QByteArrayView(bytes.data(), static_cast<qsizetype>(bytes.size()));
    while (!rest.isEmpty()) {
        const qint64 written = file.write(rest.data(), rest.size());
        if (written <= 0)
            fail(path, file.errorString());
        rest = rest.sliced(written);
    }
    if (!file.flush())
        fail(path, file.errorString());
    // A file system may report a full disk this late; one that cannot synchronise reports EINVAL.
    if (::fsync(file.handle()) != 0 && errno != EINVAL)
        fail(path, QString::fromLocal8Bit(std::strerror(errno)));

    QString aside;
    if (keepOld) {
        aside = moveAside(path);
        if (aside.isEmpty())
            fail(path, QStringLiteral("The damaged file cannot be moved aside"));
    }
    if (::rename(QFile::encodeName(file.fileName()), QFile::encodeName(path)) != 0) {
        const QString cause = QString::fromLocal8Bit(std::strerror(errno));
        if (keepOld)
            QFile::rename(aside, path);
        fail(path, cause);
    }
}

} // namespace

TextFileStore::TextFileStore() : TextFileStore(userFolder("XDG_CONFIG_HOME", ".config")) {}

TextFileStore::TextFileStore(QString configFolder) : m_configFolder(std::move(configFolder)) {}

Settings TextFileStore::load(const std::string& application) const
{
    return readFile(filePath(application)).text.settings(application);
}

void TextFileStore::save(const Settings& settings)
{
    if (settings.empty())
        return;
    const QString path = filePath(settings.front().application);
    const auto merged = [&settings](SettingsText text) {
        for (const Setting& setting : settings)
            text.setValue(setting.section, setting.key, setting.text);
        return text.bytes();
    };
    // Nothing has changed for most players who close the window.
    const SettingsText before = readFile(path).text;
    if (merged(before) == before.bytes() && !QFile::exists(temporaryName(path)))
        return;
    if (!makeFolder(QFileInfo(path).path()))
        fail(path, QStringLiteral("The folder cannot be created"));

    QLockFile lock(path + ".lock");
    acquire(lock, path);
    const StoredFile stored = readFile(path);
    if (stored.state == FileState::unreadable)
        fail(path, stored.error);
    const std::string bytes = merged(stored.text);
    if (bytes.size() > maxFileBytes)
        fail(path, QStringLiteral("The text is too long"));
    replace(path, bytes, stored.state == FileState::broken);
}

std::string TextFileStore::location(const std::string& application) const
{
    return filePath(application).toStdString();
}

QString TextFileStore::filePath(const std::string& application) const
{
    return behindLinks(m_configFolder + "/" + QString::fromStdString(application) +
                       "/settings.ini");
}

} // namespace quillet
