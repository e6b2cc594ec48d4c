#include "platform/session_end.h"

#include <QGuiApplication>

#include <utility>

namespace quillet
{

SessionEnd::SessionEnd(const Clock& clock, std::function<void()> save) : m_clock(clock)
{
    connect(
        qGuiApp, &QGuiApplication::commitDataRequest, this,
        [this, save = std::move(save)] {
            m_announced = m_clock.milliseconds();
            save();
        },
        Qt::DirectConnection);
}

bool SessionEnd::isComing() const
{
    constexpr std::int64_t maxWait = 60'000; // milliseconds
    return m_announced && m_clock.milliseconds() - *m_announced < maxWait;
}

} // namespace quillet
