#pragma once

#include <QBackingStore>
#include <QCoreApplication>
#include <QEvent>
#include <QGuiApplication>
#include <QScreen>
#include <QWidget>

#include <cstring>
#include <functional>

namespace quillet::test
{

// The content of the display, in device pixels. Unlike grab() it repaints nothing, so a picture
// that was never repainted shows its old state. (Off screen, grabWindow() cuts windows off at
// scales above 1.)
inline QImage& display(const QWidget& window)
{
    return dynamic_cast<QImage&>(*window.backingStore()->paintDevice());
}

inline QImage presented(const QWidget& window)
{
    QImage pixels = display(window).copy();
    pixels.setDevicePixelRatio(1);
    return pixels;
}

// The smallest rectangle that contains all differences; empty for equal pictures.
inline QRect difference(const QImage& first, const QImage& second)
{
    QRect found;
    for (int y = 0; y < first.height(); ++y) {
        const auto* one = reinterpret_cast<const QRgb*>(first.constScanLine(y));
        const auto* other = reinterpret_cast<const QRgb*>(second.constScanLine(y));
        if (std::memcmp(one, other, std::size_t(first.width()) * sizeof(QRgb)) == 0)
            continue;
        for (int x = 0; x < first.width(); ++x)
            if (one[x] != other[x])
                found |= QRect(x, y, 1, 1);
    }
    return found;
}

// Moves the window to a display of this scale. Returns false if there is none.
inline bool moveToScale(QWidget& window, double scale)
{
    for (const QScreen* screen : QGuiApplication::screens())
        if (screen->devicePixelRatio() == scale)
            window.move(screen->geometry().topLeft() + QPoint(20, 20));
    QCoreApplication::processEvents();
    return window.devicePixelRatioF() == scale;
}

// Looks at the window whenever one of its widgets, such as the table in a flight, is about to be
// painted again. Copy a picture to keep it.
class FrameWatch : public QObject
{
public:
    FrameWatch(QWidget& widget, std::function<void(const QImage&)> look)
        : m_widget(widget), m_look(std::move(look))
    {
        widget.installEventFilter(this);
    }

    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == QEvent::Paint)
            m_look(display(*m_widget.window()));
        return false;
    }

private:
    QWidget& m_widget;
    std::function<void(const QImage&)> m_look;
};

} // namespace quillet::test
