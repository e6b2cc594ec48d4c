#include "platform/short_delay.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QTimer>
#include <gtest/gtest.h>

#include <ctime>
#include <limits>

namespace quillet::test
{

namespace
{

class ShortDelay : public testing::Test
{
protected:
    // How long the pause took, in milliseconds.
    static qint64 pause(std::int32_t delayTime, const std::function<bool()>& cutShort = {})
    {
        QElapsedTimer time;
        time.start();
        shortDelay(delayTime, cutShort);
        return time.elapsed();
    }

    int m_count = 0;
    char m_name[5] = "test";
    char* m_arguments[2] = {m_name, nullptr};
    int m_argumentCount = 1;
    QApplication m_application{m_argumentCount, m_arguments};
};

} // namespace

TEST_F(ShortDelay, eventsRunInThePauseWithoutEndingIt)
{
    // The timers run from here on, so the pause is measured from here on.
    QElapsedTimer time;
    time.start();
    for (const int at : {0, 10, 20})
        QTimer::singleShot(at, &m_application, [this] { ++m_count; });
    // A pause of its own, longer than the rest of the outer one.
    QTimer::singleShot(30, &m_application, [this] { m_count += pause(120) >= 119 ? 10 : 0; });
    const std::clock_t processor = std::clock();
    shortDelay(100);
    EXPECT_GE(time.elapsed(), 149);
    EXPECT_LT(std::clock() - processor, CLOCKS_PER_SEC / 20) << "the wait spins";
    EXPECT_EQ(m_count, 13);
}

TEST_F(ShortDelay, theShortestPausesEndAtOnceAndATrueAnswerCutsTheLongest)
{
    QTimer::singleShot(0, &m_application, [this] { m_count = 1; });
    for (const std::int32_t delayTime : {0, -1, std::numeric_limits<std::int32_t>::min()})
        shortDelay(delayTime);
    EXPECT_EQ(m_count, 0) << "nothing to wait for lets no event run";
    const auto cutShort = [this] { return m_count == 1; };
    shortDelay(std::numeric_limits<std::int32_t>::max(), cutShort);
    EXPECT_EQ(m_count, 1);
}

} // namespace quillet::test
