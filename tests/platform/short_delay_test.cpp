#include "platform/event_clock.h"
#include "platform/short_delay.h"

#include <QApplication>
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
    for (const int at : {0, 10, 20})
        QTimer::singleShot(at, &m_application, [this] { ++m_count; });
    // A pause of its own, longer than the rest of the outer one.
    QTimer::singleShot(30, &m_application, [this] { m_count += pause(120) > 119 ? 10 : 0; });
    const std::clock_t processor = std::clock();
    const double took = pause(100);
    EXPECT_GE(took, 149);
    EXPECT_LT(took, 1000) << "a sanity bound";
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
    EXPECT_LT(pause(std::numeric_limits<std::int32_t>::max(), cutShort), 1000);
    EXPECT_EQ(m_count, 1);
}

} // namespace quillet::test
