#pragma once

#include <QApplication>
#include <QWidget>

namespace quillet
{

// The open window of this class, or null. A window that is closed but not yet deleted (a pause can
// delay that) does not count.
template <typename Window>
[[nodiscard]] Window* openWindow()
{
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        auto* window = qobject_cast<Window*>(widget);
        if (window != nullptr && window->isVisible())
            return window;
    }
    return nullptr;
}

inline void bringToFront(QWidget& window)
{
    window.setWindowState(window.windowState() & ~Qt::WindowMinimized);
    window.show();
    window.raise();
    window.activateWindow();
}

} // namespace quillet
