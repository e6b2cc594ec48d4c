#include "platform/browser_opener.h"

#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <gtest/gtest.h>

namespace quillet::test
{

TEST(BrowserOpener, handsOnlyWebAddressesOverSilentlyAndWaitsForNothing)
{
    const QByteArray path = qgetenv("PATH");
    const QTemporaryDir folder;
    qputenv("PATH", folder.path().toLocal8Bit());
    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();
    openInBrowser("http://there.is.no.opener.example");
    QFile script(folder.filePath("xdg-open"));
    ASSERT_TRUE(script.open(QIODevice::WriteOnly));
    script.write("#!/bin/sh\necho noise; echo noise >&2\necho \"$# $1\" >> \"$0.notes\"\n"
                 "PATH=/usr/bin:/bin exec sleep 6\n");
    script.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    script.close();
    QElapsedTimer timer;
    timer.start();
    for (const char* address :
         {"", "/etc/passwd", "file:///etc/passwd", "--help", "mailto:a@b.example", "http://",
          "http:www.quillet.example", "http://a b.example", "xdg-open"})
        openInBrowser(address);
    openInBrowser("https://www.quillet.example/a;b?c=$HOME&d");
    EXPECT_LT(timer.elapsed(), 3000);
    QFile notes(script.fileName() + ".notes");
    EXPECT_TRUE(QTest::qWaitFor([&notes] { return notes.size() > 0; }));
    EXPECT_TRUE(notes.open(QIODevice::ReadOnly));
    EXPECT_EQ(notes.readAll(), "1 https://www.quillet.example/a;b?c=$HOME&d\n");
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
    qputenv("PATH", path);
}

} // namespace quillet::test
