#include "screens/frm_about.h"
#include "screens/single_window.h"
#include "tests/kit/window_driving.h"

#include <QLabel>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quillet::test
{

TEST(AboutBox, theLinkOpensTheAddressThatItShows)
{
    QWidget owner;
    RecordingShell pages;
    frmAbout::present(&owner, pages);
    auto* const box = openWindow<frmAbout>();
    ASSERT_TRUE(box != nullptr && QTest::qWaitForWindowExposed(box));
    auto& link = control<QLabel>(*box, "lblLink");
    EXPECT_EQ(link.x() + link.contentsRect().x(), control(*box, "Label4").x()) << "in line";
    EXPECT_EQ(link.text(), "http://downloads.quillet.example/free/videopoker");
    doubleClick(link);
    link.setText("http://elsewhere.example/x");
    link.adjustSize();
    click(link);
    EXPECT_THAT(pages.opened,
                testing::ElementsAre("http://downloads.quillet.example/free/videopoker",
                                     "http://elsewhere.example/x"));
    EXPECT_TRUE(pages.allPlain);
}

} // namespace quillet::test
