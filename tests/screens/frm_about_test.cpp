#include "screens/frm_about.h"
#include "screens/single_window.h"
#include "tests/kit/window_driving.h"

#include <QLabel>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quillet::test
{

class AboutTest : public testing::Test
{
protected:
    frmAbout& present()
    {
        frmAbout::present(&owner, shell);
        auto* box = openWindow<frmAbout>();
        EXPECT_TRUE(box != nullptr && QTest::qWaitForWindowExposed(box));
        return *box;
    }

    QWidget owner;
    RecordingShell shell;
};

TEST_F(AboutTest, theLinkOpensTheAddressThatItShows)
{
    frmAbout& box = present();
    auto& link = control<QLabel>(box, "lblLink");
    EXPECT_EQ(link.x() + link.contentsRect().x(), control(box, "Label4").x()) << "in line";
    EXPECT_EQ(link.text(), "http://downloads.quillet.example/free/videopoker");
    doubleClick(link);
    link.setText("http://elsewhere.example/x");
    link.adjustSize();
    click(link);
    EXPECT_THAT(shell.opened,
                testing::ElementsAre("http://downloads.quillet.example/free/videopoker",
                                     "http://elsewhere.example/x"));
    EXPECT_TRUE(shell.allPlain);
}

} // namespace quillet::test
