#include "platform/browser_opener.h"

#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <gtest/gtest.h>

namespace quillet::test
{

// Puts a folder of its own in the place of the machine's programs, and in it, when asked, an
// opener that notes its arguments.
class BrowserOpenerTest : public testing::Test
{
protected:
    void SetUp() override
    {
        m_path = qgetenv("PATH");
        qputenv("PATH", m_folder.path().toLocal8Bit());
    }
    void TearDown() override { qputenv("PATH", m_path); }

    void installOpener(const QByteArray& afterNoting)
    {
        QFile script(m_folder.filePath("xdg-open"));
        ASSERT_TRUE(script.open(QIODevice::WriteOnly));
        script.write("#!/bin/sh\necho noise; echo noise >&2\n"
                     "echo \"$# $1\" >> '" +
                     notes().toLocal8Bit() + "'\n" + afterNoting + "\n");
        script.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }
    [[nodiscard]] QString notes() const { return m_folder.filePath("notes"); }
    [[nodiscard]] QByteArray noted() const
    {
        QFile file(notes());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    QTemporaryDir m_folder;
    QByteArray m_path;
};

TEST_F(BrowserOpenerTest, webAddressesReachTheOpenerInOnePieceAndNothingIsPrinted)
{
    installOpener("");
    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();
    BrowserOpener().open("open", "http://www.quillet.example/a;b?c=$HOME&d", "", "", 1);
    EXPECT_TRUE(QTest::qWaitFor([&] { return noted().endsWith('\n'); }));
    EXPECT_EQ(noted(), "1 http://www.quillet.example/a;b?c=$HOME&d\n");
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

TEST_F(BrowserOpenerTest, onlyWebAddressesAreOpened)
{
    installOpener("");
    for (const char* file :
         {"", "/etc/passwd", "file:///etc/passwd", "--help", "mailto:a@b.example", "http://",
          "http:www.quillet.example", "http://a b.example", "xdg-open"})
        BrowserOpener().open("open", file, "", "", 1);
    BrowserOpener().open("print", "http://www.quillet.example", "", "", 1);
    BrowserOpener().open("open", "https://last.example", "", "", 1);
    EXPECT_TRUE(QTest::qWaitFor([&] { return noted().contains("last"); }));
    EXPECT_EQ(noted(), "1 https://last.example\n");
}

TEST_F(BrowserOpenerTest, aSlowOpenerIsNotWaitedForAndAMissingOneIsSilence)
{
    QElapsedTimer timer;
    timer.start();
    testing::internal::CaptureStderr();
    BrowserOpener().open("open", "http://www.quillet.example", "", "", 1);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
    installOpener("PATH=/usr/bin:/bin exec sleep 6");
    BrowserOpener().open("open", "http://www.quillet.example", "", "", 1);
    EXPECT_LT(timer.elapsed(), 3000);
    EXPECT_TRUE(QTest::qWaitFor([&] { return noted().endsWith('\n'); }));
}

} // namespace quillet::test
