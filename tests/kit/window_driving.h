#pragma once

#include "faults/run_time_error.h"

#include <QTest>
#include <QWidget>
#include <QWindow>

#include <string>
#include <vector>

namespace quillet::test
{

// Records the pages that the windows open.
struct RecordingShell {
    void operator()(const std::string& address)
    {
        if (fails)
            throw RunTimeError("the wind");
        opened.push_back(address);
    }

    std::vector<std::string> opened;
    bool fails = false;
};

template <typename Widget = QWidget>
Widget& control(QWidget& window, const char* name)
{
    auto* widget = window.findChild<Widget*>(name);
    if (widget == nullptr)
        qFatal("no control %s", qPrintable(name));
    return *widget;
}

// The centre of a control, in its window. Mouse input goes through the window, so Qt makes the same
// events of it, in the same order, as of real presses.
inline QPoint middleOf(QWidget& widget)
{
    return widget.mapTo(widget.window(), widget.rect().center());
}

inline void click(QWidget& widget, Qt::MouseButton button = Qt::LeftButton)
{
    QTest::mouseClick(widget.window()->windowHandle(), button, {}, middleOf(widget));
}

inline void doubleClick(QWidget& widget)
{
    QTest::mouseDClick(widget.window()->windowHandle(), Qt::LeftButton, {}, middleOf(widget));
}

} // namespace quillet::test
