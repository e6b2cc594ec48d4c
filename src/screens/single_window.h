#pragma once

#include <QApplication>
#include <QWidget>

namespace quillet
{

// The open window of this class, or null. A closed one that is not yet deleted (it may have to
// wait for the end of a pause) does not count.
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
