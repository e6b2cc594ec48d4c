#include "platform/short_delay.h"

#include <QElapsedTimer>
#include <QTimer>
#include <gtest/gtest.h>

#include <ctime>
#include <limits>

namespace quillet::test
{

TEST(ShortDelay, eventsRunInThePauseWithoutEndingIt)
{
    // The timers start here, so the measurement does, too.
    QElapsedTimer time;
    time.start();
    int handled = 0;
    for (const int at : {0, 10, 20})
        QTimer::singleShot(at, [&handled] { ++handled; });
    // A nested pause, longer than the rest of the outer one.
    QTimer::singleShot(30, [&handled] {
        shortDelay(120);
        handled += 10;
    });
    const std::clock_t processor = std::clock();
    shortDelay(100);
    EXPECT_GE(time.elapsed(), 149);
    EXPECT_LT(std::clock() - processor, CLOCKS_PER_SEC / 20) << "the wait spins";
    EXPECT_EQ(handled, 13);
}

TEST(ShortDelay, theShortestPausesEndAtOnceAndATrueAnswerCutsTheLongest)
{
    bool handled = false;
    QTimer::singleShot(0, [&handled] { handled = true; });
    for (const std::int32_t delayTime : {0, -1, std::numeric_limits<std::int32_t>::min()})
        shortDelay(delayTime);
    EXPECT_FALSE(handled) << "nothing to wait for lets no event run";
    shortDelay(std::numeric_limits<std::int32_t>::max(), [&handled] { return handled; });
    EXPECT_TRUE(handled);
}

} // namespace quillet::test
