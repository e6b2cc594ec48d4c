#include "platform/short_delay.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QTimer>

#include <cassert>

namespace quillet
{

void shortDelay(std::int32_t delayTime, const std::function<bool()>& cutShort)
{
    if (delayTime <= 0)
        return;
    // Without the application, nothing would wait, and the loop would spin.
    assert(QCoreApplication::instance());

    const QDeadlineTimer deadline(qint64{delayTime}, Qt::PreciseTimer);
    QTimer waker;
    waker.setTimerType(Qt::PreciseTimer);
    waker.setSingleShot(true);
    while (!deadline.hasExpired()) {
        // Started again in each turn, because a pause inside this one may have used up its timeout.
        waker.start(static_cast<int>(deadline.remainingTime()));
        QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
        if (cutShort && cutShort())
            return;
    }
}

} // namespace quillet
