#include "platform/window_place.h"

#include <QCoreApplication>
#include <QEvent>
#include <QTimer>
#include <QWidget>
#include <QWindow>

namespace quillet
{

WindowPlace::WindowPlace(QWidget& window) : m_window(window)
{
    window.installEventFilter(this);
}

// A window that is shown anew is placed anew, some time after that. For a moment it insists on the
// place where it was.
void WindowPlace::comeBack()
{
    constexpr int insistence = 1000; // milliseconds
    if (m_place)
        m_window.windowHandle()->setPosition(*m_place);
    m_comingBack = true;
    QTimer::singleShot(insistence, this, [this] { m_comingBack = false; });
}

bool WindowPlace::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Move)
        moved();
    return QObject::eventFilter(watched, event);
}

// A window manager that is about to fill the screen may move the window first and tell of its state
// afterwards, so a place counts only when it has lasted.
void WindowPlace::moved()
{
    const QPoint place = m_window.geometry().topLeft();
    if (m_comingBack) {
        if (m_place && place != *m_place)
            m_window.windowHandle()->setPosition(*m_place);
        return;
    }
    constexpr int lasting = 250; // milliseconds
    QTimer::singleShot(lasting, this, [this, place] {
        const bool filling =
            m_window.isMaximized() || m_window.isFullScreen() || m_window.isMinimized();
        if (m_window.isVisible() && !filling && !m_comingBack &&
            m_window.geometry().topLeft() == place)
            m_place = place;
    });
}

void showAndWaitUntilExposed(QWidget& window)
{
    constexpr int longestExposure = 1000; // milliseconds
    if (window.isVisible())
        return;
    window.show();
    // Its timeout is an event, too, which ends the last waiting for one.
    QTimer patience;
    patience.setSingleShot(true);
    patience.start(longestExposure);
    while (!window.windowHandle()->isExposed() && patience.isActive())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents |
                                        QEventLoop::ExcludeUserInputEvents);
}

} // namespace quillet
