#pragma once

#include "platform/clock.h"

#include <QObject>

#include <cstdint>
#include <functional>
#include <optional>

namespace quillet
{

// Listens for the end of the desktop session, which may end the process without closing its
// windows.
class SessionEnd : public QObject
{
    Q_OBJECT

public:
    // Calls save when the end of the session is announced.
    SessionEnd(const Clock& clock, std::function<void()> save);

    // False again if the session has not ended a minute after the announcement.
    [[nodiscard]] bool isComing() const;

private:
    const Clock& m_clock;
    std::optional<std::int64_t> m_announced; // in milliseconds of the clock
};

} // namespace quillet
