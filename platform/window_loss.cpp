#include "platform/window_loss.h"

#include <QCoreApplication>

#include <cstdint>
#include <cstring>

namespace quillet
{

namespace
{

// The X protocol's DestroyNotify, as it comes from the server.
struct DestroyNotify {
    static constexpr std::uint8_t type = 17;

    std::uint8_t responseType;
    std::uint8_t unused;
    std::uint16_t sequence;
    std::uint32_t event;
    std::uint32_t window;
};

} // namespace

WindowLoss::WindowLoss(QWidget& window) : m_window(window.winId())
{
    QCoreApplication::instance()->installNativeEventFilter(this);
}

WindowLoss::~WindowLoss()
{
    QCoreApplication::instance()->removeNativeEventFilter(this);
}

bool WindowLoss::nativeEventFilter(const QByteArray& eventType, void* message, qintptr*)
{
    if (eventType != "xcb_generic_event_t")
        return false;
    DestroyNotify notice;
    std::memcpy(&notice, message, sizeof notice);
    if (notice.responseType == DestroyNotify::type && notice.window == m_window)
        QMetaObject::invokeMethod(this, &WindowLoss::windowLost, Qt::QueuedConnection);
    return false;
}

} // namespace quillet
