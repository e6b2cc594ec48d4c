#include "platform/event_clock.h"
#include "platform/short_delay.h"

#include <QApplication>
#include <QMouseEvent>
#include <QTimer>
#include <QWidget>
#include <gtest/gtest.h>

#include <limits>
#include <sys/resource.h>

namespace quillet::test
{

namespace
{

double processorSeconds()
{
    rusage usage{};
    ::getrusage(RUSAGE_SELF, &usage);
    const auto seconds = [](const timeval& time) {
        return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / 1e6;
    };
    return seconds(usage.ru_utime) + seconds(usage.ru_stime);
}

class ClickCounter : public QWidget
{
public:
    int clicks = 0;

protected:
    void mousePressEvent(QMouseEvent* event) override
    {
        ++clicks;
        event->accept();
    }
};

class ShortDelay : public testing::Test
{
protected:
    // How long the pause took, in milliseconds.
    double pause(std::int32_t delayTime, const std::function<bool()>& cutShort = {})
    {
        const double start = m_clock.seconds();
        shortDelay(delayTime, cutShort);
        return (m_clock.seconds() - start) * 1000;
    }

    int m_count = 0;
    char m_name[5] = "test";
    char* m_arguments[2] = {m_name, nullptr};
    int m_argumentCount = 1;
    QApplication m_application{m_argumentCount, m_arguments};
    EventClock m_clock;
};

} // namespace

TEST_F(ShortDelay, eventsRunInThePauseWithoutEndingIt)
{
    ClickCounter window;
    window.show();
    const auto click = [&window] {
        QCoreApplication::postEvent(
            &window, new QMouseEvent(QEvent::MouseButtonPress, QPointF(1, 1), QPointF(1, 1),
                                     Qt::LeftButton, Qt::LeftButton, Qt::NoModifier));
    };
    for (const int at : {0, 20, 40, 60})
        QTimer::singleShot(at, &window, click);

    const std::int64_t start = m_clock.milliseconds();
    const double took = pause(150);
    EXPECT_GE(took, 149.9);
    EXPECT_LT(took, 1000) << "a sanity bound";
    EXPECT_GE(m_clock.milliseconds() - start, 149);
    EXPECT_EQ(window.clicks, 4);
}

TEST_F(ShortDelay, nothingToWaitForLetsNoEventRun)
{
    QTimer::singleShot(0, &m_application, [this] { ++m_count; });
    for (const std::int32_t delayTime : {0, -1, std::numeric_limits<std::int32_t>::min()})
        shortDelay(delayTime);
    EXPECT_EQ(m_count, 0);
}

TEST_F(ShortDelay, aPauseWithinAPauseDoesNotHoldUpTheOuterOneForEver)
{
    QTimer::singleShot(10, &m_application, [this] { m_count = pause(120) > 119; });
    const double took = pause(50);
    EXPECT_EQ(m_count, 1);
    EXPECT_GE(took, 129);
    EXPECT_LT(took, 1000);
}

TEST_F(ShortDelay, aTrueAnswerCutsTheLongestPauseShort)
{
    QTimer::singleShot(30, &m_application, [this] { m_count = 1; });
    EXPECT_LT(pause(std::numeric_limits<std::int32_t>::max(), [this] { return m_count == 1; }),
              1000);
    EXPECT_EQ(m_count, 1);
}

TEST_F(ShortDelay, waitingLeavesTheProcessorAlone)
{
    pause(20);
    const double before = processorSeconds();
    pause(500);
    EXPECT_LT(processorSeconds() - before, 0.1);
}

} // namespace quillet::test
