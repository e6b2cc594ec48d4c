#pragma once

#include <QBackingStore>
#include <QCoreApplication>
#include <QEvent>
#include <QGuiApplication>
#include <QScreen>
#include <QWidget>

#include <functional>

namespace quillet::test
{

// What is on the display, in device pixels. Nothing is painted anew for it, as grab() does, so
// that a picture which was never repainted shows its old state. (Off screen, grabWindow() cuts
// windows off at scales above 1.)
inline QImage presented(const QWidget& window)
{
    return dynamic_cast<const QImage&>(*window.backingStore()->paintDevice()).copy();
}

// Whether there is a display of this scale, on which the window now lies.
inline bool moveToScale(QWidget& window, double scale)
{
    for (const QScreen* screen : QGuiApplication::screens())
        if (screen->devicePixelRatio() == scale)
            window.move(screen->geometry().topLeft() + QPoint(20, 20));
    QCoreApplication::processEvents();
    return window.devicePixelRatioF() == scale;
}

// Looks at every frame of a table, while it waits to be followed by the next one.
class FrameWatch : public QObject
{
public:
    FrameWatch(QWidget& table, std::function<void(const QImage&)> look)
        : m_table(table), m_look(std::move(look))
    {
        table.installEventFilter(this);
    }

    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == QEvent::Paint)
            m_look(presented(*m_table.window()));
        return false;
    }

private:
    QWidget& m_table;
    std::function<void(const QImage&)> m_look;
};

} // namespace quillet::test
