#include "screens/frm_about.h"
#include "screens/single_window.h"
#include "tests/kit/presented.h"
#include "tests/kit/window_driving.h"

#include <QLabel>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quillet::test
{

TEST(AboutBox, theLinkOpensTheAddressThatItShows)
{
    QWidget owner;
    owner.show();
    ASSERT_TRUE(moveToScale(owner, 2));
    RecordingShell pages;
    frmAbout::present(&owner, std::ref(pages));
    auto* const box = openWindow<frmAbout>();
    ASSERT_TRUE(box != nullptr && QTest::qWaitForWindowExposed(box));
    EXPECT_EQ(control<QLabel>(*box, "picIcon").pixmap().devicePixelRatio(), 2);
    box->showMinimized();
    frmAbout::present(&owner, std::ref(pages));
    EXPECT_FALSE(box->isMinimized());
    auto& link = control<QLabel>(*box, "lblLink");
    EXPECT_EQ(link.x() + link.contentsRect().x(), control(*box, "Label4").x()) << "in line";
    EXPECT_EQ(link.text(), "http://downloads.quillet.example/free/videopoker");
    doubleClick(link);
    link.setText("http://elsewhere.example/x");
    link.adjustSize();
    click(link);
    link.setFocus();
    QTest::keyClick(&link, Qt::Key_Enter, Qt::KeypadModifier);
    EXPECT_THAT(pages.opened,
                testing::ElementsAre("http://downloads.quillet.example/free/videopoker",
                                     "http://elsewhere.example/x", "http://elsewhere.example/x"));
}

} // namespace quillet::test
