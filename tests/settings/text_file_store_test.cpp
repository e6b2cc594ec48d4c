#include "faults/run_time_error.h"
#include "settings/text_file_store.h"
#include "tests/kit/plain_user.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gmock/gmock.h>

#include <chrono>
#include <csignal>
#include <filesystem>
#include <pwd.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

namespace quillet::test
{

using testing::HasSubstr;

namespace
{

// Limits the size of files, like a disk that is nearly full.
class FullDisk
{
public:
    explicit FullDisk(rlim_t bytes)
    {
        std::signal(SIGXFSZ, SIG_IGN);
        ::getrlimit(RLIMIT_FSIZE, &m_before);
        rlimit small = m_before;
        small.rlim_cur = bytes;
        EXPECT_EQ(::setrlimit(RLIMIT_FSIZE, &small), 0);
    }
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;
    ~FullDisk() { ::setrlimit(RLIMIT_FSIZE, &m_before); }

private:
    rlimit m_before{};
};

class TextFileStoreTest : public testing::Test
{
protected:
    [[nodiscard]] QString path(const QString& name = "settings.ini") const
    {
        return m_home.filePath("config/Quillet/" + name);
    }

    void writeFile(const QString& name, const QByteArray& bytes) const
    {
        QDir().mkpath(path(""));
        QFile file(path(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write(bytes), bytes.size());
    }

    [[nodiscard]] std::string fileText(const QString& name = "settings.ini") const
    {
        QFile file(path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll().toStdString() : "no file";
    }

    [[nodiscard]] std::string read(const std::string& key) const
    {
        return readSetting(store.load("Quillet"), "Quillet", "Preferences", key, "default");
    }

    // Saves one setting and returns the text of the exception.
    std::string write(const std::string& key, const std::string& text)
    {
        try {
            store.save({{"Quillet", "Preferences", key, text}});
            return "";
        } catch (const RunTimeError& error) {
            return error.what();
        }
    }

    static unsigned mode(const QString& path)
    {
        struct stat status {
        };
        EXPECT_EQ(::stat(path.toLocal8Bit(), &status), 0);
        return status.st_mode & 0777;
    }

    // Everything in the folder except the settings.
    [[nodiscard]] QStringList leftovers() const
    {
        QStringList names = QDir(path("")).entryList(QDir::AllEntries | QDir::Hidden |
                                                     QDir::System | QDir::NoDotAndDotDot);
        names.removeAll("settings.ini");
        return names;
    }

    QTemporaryDir m_home;
    TextFileStore store{m_home.filePath("config")};
};

} // namespace

TEST_F(TextFileStoreTest, textsLastAndAnEmptyOneIsNotMissing)
{
    EXPECT_EQ(read("k"), "default");
    EXPECT_FALSE(QDir(m_home.filePath("config")).exists());

    store.save({{"Quillet", "Preferences", "k", "a=b\n"}, {"Quillet", "Preferences", "empty", ""}});
    EXPECT_EQ(read("k"), "a=b\n");
    EXPECT_EQ(read("empty"), "");
    EXPECT_EQ(fileText(), "[Preferences]\nk=a=b\\n\nempty=\n");
    EXPECT_EQ(leftovers(), QStringList());
}

TEST_F(TextFileStoreTest, filesThatAreNoSettingsAreKeptAside)
{
    const QByteArray large = "[Preferences]\nk=" + QByteArray(1024 * 1024, 'x');
    for (const QByteArray& bytes :
         {QByteArray("[Preferences]\nk=1\nwhat\n"), QByteArray(9, '\0'), large}) {
        writeFile("settings.ini", bytes);
        EXPECT_EQ(read("k"), "default");
        EXPECT_EQ(leftovers().size(), 0) << "by reading alone";
        EXPECT_EQ(write("k", "new"), "");
        EXPECT_EQ(fileText(), "[Preferences]\nk=new\n");
        EXPECT_EQ(leftovers(), QStringList("settings.ini.bad"));
        EXPECT_EQ(fileText("settings.ini.bad"), bytes.toStdString());
        QFile::remove(path("settings.ini.bad"));
    }
    writeFile("settings.ini.bad", "earlier");
    writeFile("settings.ini", "what");
    EXPECT_EQ(write("k", "new"), "");
    EXPECT_EQ(fileText("settings.ini.bad"), "earlier");
    EXPECT_EQ(fileText("settings.ini.bad2"), "what");
}

TEST_F(TextFileStoreTest, aFullDiskLeavesTheOldFileWhole)
{
    EXPECT_EQ(write("k", "old"), "");
    for (const rlim_t bytes : {rlim_t{1000}, rlim_t{0}}) {
        const FullDisk full(bytes);
        EXPECT_THAT(write("k", std::string(5000, 'x')),
                    testing::AllOf(testing::StartsWith("The settings cannot be stored in /"),
                                   HasSubstr(bytes > 0 ? "File too large" : "disk")));
        EXPECT_THROW(store.save({{"Quillet", "Preferences", "k", "new"},
                                 {"Quillet", "Preferences", "l", std::string(5000, 'x')}}),
                     RunTimeError);
        EXPECT_EQ(write("k", "old"), "") << "nothing to store";
    }
    EXPECT_EQ(fileText(), "[Preferences]\nk=old\n") << "all of a save, or nothing";
    EXPECT_EQ(leftovers(), QStringList());

    EXPECT_THAT(write("k", std::string(1024 * 1024, 'x')), testing::EndsWith("too long"));
    writeFile("settings.ini", "what");
    const FullDisk full(1000);
    EXPECT_NE(write("k", std::string(5000, 'x')), "");
    EXPECT_EQ(fileText(), "what") << "not set aside in vain";
    EXPECT_EQ(leftovers(), QStringList());
}

TEST_F(TextFileStoreTest, whatTheUserHasMadeOfTheFileStays)
{
    EXPECT_EQ(write("k", "old"), "");
    for (const char* folder : {"config", "config/Quillet"})
        EXPECT_EQ(mode(m_home.filePath(folder)), 0700U) << folder;
    // Left behind by a save that was killed; the lock is from another machine.
    writeFile("settings.ini.new", "[Preferen");
    writeFile("settings.ini.lock", "1\nquillet\nelsewhere\n");
    using FileTime = std::filesystem::file_time_type;
    std::filesystem::last_write_time(path("settings.ini.lock").toStdString(),
                                     FileTime::clock::now() - std::chrono::seconds(15));
    EXPECT_EQ(write("k", "old"), "");
    EXPECT_EQ(leftovers(), QStringList());

    ASSERT_TRUE(QFile::rename(path(), path("elsewhere")));
    ASSERT_TRUE(QFile::link("elsewhere", path()));
    ASSERT_EQ(::chmod(path("elsewhere").toLocal8Bit(), 0640), 0);
    EXPECT_EQ(write("k", "new"), "");
    EXPECT_TRUE(QFileInfo(path()).isSymLink());
    EXPECT_EQ(fileText("elsewhere"), "[Preferences]\nk=new\n");
    EXPECT_EQ(mode(path("elsewhere")), 0640U);

    for (const char* open : {"", "config", "config/Quillet"})
        ASSERT_EQ(::chmod(m_home.filePath(open).toLocal8Bit(), 0777), 0);
    ASSERT_EQ(::chmod(path().toLocal8Bit(), 0), 0);
    {
        const PlainUser user;
        EXPECT_EQ(read("k"), "default");
        EXPECT_THAT(write("k", "lost"), HasSubstr("cannot be stored"));
    }
    EXPECT_EQ(fileText("elsewhere"), "[Preferences]\nk=new\n") << "unreadable is not broken";

    ASSERT_TRUE(QFile::remove(path()));
    ASSERT_EQ(::mkfifo(path().toLocal8Bit(), 0600), 0);
    EXPECT_EQ(read("k"), "default") << "nobody waits for its other end";
    EXPECT_THAT(write("k", "lost"), HasSubstr("It is not a file"));
}

TEST(UsersStore, liesInTheHomeOfTheUserDatabaseWhereNoneIsSet)
{
    const QByteArray home = qgetenv("HOME");
    const QByteArray config = qgetenv("XDG_CONFIG_HOME");
    qunsetenv("HOME");
    qputenv("XDG_CONFIG_HOME", "relative");
    const std::string known = ::getpwuid(::getuid())->pw_dir;
    EXPECT_EQ(TextFileStore().location("Quillet"), known + "/.config/Quillet/settings.ini");
    qputenv("HOME", home);
    config.isNull() ? qunsetenv("XDG_CONFIG_HOME") : qputenv("XDG_CONFIG_HOME", config);
}

TEST_F(TextFileStoreTest, writersMergeTheirKeys)
{
    const auto writer = [this](const std::string& name) {
        TextFileStore own(m_home.filePath("config"));
        for (int i = 0; i < 6; ++i)
            own.save({{"Quillet", "Preferences", name + std::to_string(i), name}});
    };
    std::thread first(writer, "first"), second(writer, "second");
    first.join();
    second.join();
    for (const std::string name : {"first", "second"})
        for (int i = 0; i < 6; ++i)
            EXPECT_EQ(read(name + std::to_string(i)), name);
}

} // namespace quillet::test
