#include "screens/frm_exit_no_banner.h"
#include "screens/link_label.h"
#include "tests/kit/window_driving.h"

#include <QAccessible>
#include <QLabel>
#include <QTimer>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quillet::test
{

using testing::ElementsAre;

const std::string home = "http://www.quillet.example";

class ExitScreenTest : public testing::Test
{
protected:
    ExitScreenTest()
    {
        QObject::connect(&window, &frmExitNoBanner::unloadMainWindow, [this] { note("unload"); });
        QObject::connect(&window, &frmExitNoBanner::endProgram, [this] { note("end"); });
    }

    void note(const std::string& what)
    {
        log.push_back(what + (window.isVisible() ? ", shown" : ", gone") + ", opened " +
                      std::to_string(pages.opened.size()));
    }
    // Shows the window as the program does, and calls the act when it is visible.
    void runWith(const std::function<void()>& act)
    {
        QTimer::singleShot(0, &window, [&] {
            ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
            act();
        });
        window.exec();
    }

    RecordingShell pages;
    frmExitNoBanner window{std::ref(pages)};
    std::vector<std::string> log;
};

TEST_F(ExitScreenTest, aDoubleClickOpensTwiceOnALinkLabelAndOnceOnTheFooter)
{
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    for (const char* name : {"Label1", "Label2", "Label4", "Label5", "Label6", "Label7", "Label8",
                             "Label9", "Label10", "Label11", "Label12", "lblLink"}) {
        auto& label = control<LinkLabel>(window, name);
        pages.opened.clear();
        click(label);
        EXPECT_THAT(pages.opened, ElementsAre(home)) << name;
        doubleClick(label);
        EXPECT_THAT(pages.opened, ElementsAre(home, home, home)) << name;
    }
    doubleClick(control(window, "Label3"));
    EXPECT_EQ(pages.opened.size(), 4U);
    EXPECT_TRUE(window.isVisible());
    EXPECT_TRUE(log.empty());
}

TEST_F(ExitScreenTest, everyWayOutUnloadsOnceAndTheButtonsEnd)
{
    runWith([this] { QTest::keyClick(window.windowHandle(), Qt::Key_Return); });
    runWith([this] { click(control(window, "Command1")); });
    runWith([this] { window.windowHandle()->close(); });
    runWith([this] { QTest::keyClick(window.windowHandle(), Qt::Key_Escape); });
    runWith([this] { click(control(window, "cmdOK")); });
    EXPECT_THAT(log, ElementsAre("unload, shown, opened 0", "end, gone, opened 0",
                                 "unload, shown, opened 0", "end, gone, opened 0",
                                 "unload, shown, opened 0", "unload, shown, opened 0",
                                 "unload, shown, opened 1", "end, gone, opened 1"));
    EXPECT_THAT(pages.opened, ElementsAre(home));
}

} // namespace quillet::test
