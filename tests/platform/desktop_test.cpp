#include "platform/error_box.h"
#include "platform/system_clock.h"
#include "platform/window_exposure.h"
#include "tests/kit/played_window.h"

#include <QElapsedTimer>
#include <QMessageBox>
#include <QThread>

namespace quillet::test
{

TEST(ErrorBox, showsItsTextLetterByLetter)
{
    whileOpen<QMessageBox>([] { showErrorBox("<b>\n&"); },
                           [](QMessageBox& box) {
                               EXPECT_EQ(box.text(), "<b>\n&");
                               EXPECT_EQ(box.textFormat(), Qt::PlainText);
                           });
}

TEST(SystemClock, countsThisThreadsWorkApartFromTheTime)
{
    SystemClock clock;
    const std::int64_t start = clock.milliseconds();
    const double processor = clock.processorSeconds();
    QThread::msleep(50);
    EXPECT_LT(clock.processorSeconds() - processor, 0.02);
    EXPECT_GE(clock.milliseconds() - start, 49);
}

TEST(WindowExposure, aWindowThatIsNeverSeenIsNotWaitedForForEver)
{
    QWidget hidden;
    hidden.setAttribute(Qt::WA_DontShowOnScreen);
    QElapsedTimer time;
    time.start();
    showAndWaitUntilExposed(hidden);
    EXPECT_LT(time.elapsed(), 30'000);
}

} // namespace quillet::test
