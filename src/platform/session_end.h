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
    // Saves whatever is to last as soon as the end is announced. The clock outlives this.
    SessionEnd(Clock& clock, std::function<void()> save);

    // An announced end that does not come has been called off.
    [[nodiscard]] bool isComing() const;

private:
    Clock& m_clock;
    std::optional<std::int64_t> m_announced; // in milliseconds of the clock
};

} // namespace quillet
