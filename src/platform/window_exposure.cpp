#include "platform/window_exposure.h"

#include <QCoreApplication>
#include <QTimer>
#include <QWidget>
#include <QWindow>

namespace quillet
{

void showAndWaitUntilExposed(QWidget& window)
{
    constexpr int maxWait = 1000; // milliseconds
    if (window.isVisible())
        return;
    window.show();
    // The timeout is an event, so it also ends the wait below.
    QTimer patience;
    patience.setSingleShot(true);
    patience.start(maxWait);
    while (!window.windowHandle()->isExposed() && patience.isActive())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents |
                                        QEventLoop::ExcludeUserInputEvents);
}

} // namespace quillet
