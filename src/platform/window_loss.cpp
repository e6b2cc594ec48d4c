#include "platform/window_loss.h"

#include <QApplication>
#include <QWidget>
#include <QWindow>

#include <cstdint>
#include <cstring>

namespace quillet
{

namespace
{

// The message DestroyNotify of the X protocol.
struct DestroyNotify {
    static constexpr std::uint8_t type = 17;

    std::uint8_t responseType;
    std::uint8_t unused;
    std::uint16_t sequence;
    std::uint32_t event;
    std::uint32_t window;
};

// Windows that Qt itself has destroyed no longer have this number.
void closeWindow(WId lost)
{
    for (QWidget* window : QApplication::topLevelWidgets()) {
        const QWindow* handle = window->windowHandle();
        if (window->isVisible() && handle != nullptr && handle->winId() == lost) {
            window->close();
            return;
        }
    }
}

} // namespace

WindowLoss::WindowLoss()
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
    if (notice.responseType == DestroyNotify::type)
        QMetaObject::invokeMethod(
            this, [lost = WId{notice.window}] { closeWindow(lost); }, Qt::QueuedConnection);
    return false;
}

} // namespace quillet
