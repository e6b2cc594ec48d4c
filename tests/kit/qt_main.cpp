#include <QApplication>
#include <gtest/gtest.h>

// Needs no display: Qt makes several offscreen ones, each with another scale.
int main(int argc, char* argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" QUILLET_TEST_DISPLAYS);
    qputenv("QT_SCREEN_SCALE_FACTORS", "1;1.25;1.5;1.75;2");
    QApplication application(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
