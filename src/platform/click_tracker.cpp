#include "platform/click_tracker.h"

#include <QMouseEvent>

#include <utility>

namespace quillet
{

ClickTracker::ClickTracker(QWidget& widget) : QObject(&widget), m_widget(widget)
{
    widget.installEventFilter(this);
}

bool ClickTracker::eventFilter(QObject*, QEvent* event)
{
    const bool press = event->type() == QEvent::MouseButtonPress;
    const bool release = event->type() == QEvent::MouseButtonRelease;
    const bool secondPress = event->type() == QEvent::MouseButtonDblClick;
    if (!press && !release && !secondPress)
        return false;
    const auto& mouse = static_cast<const QMouseEvent&>(*event);
    const bool left = mouse.button() == Qt::LeftButton;
    const bool wasPressed = std::exchange(m_leftPressed, m_active && press && left);
    if (m_active && press)
        emit pressed();
    if (m_active && secondPress)
        emit doubleClicked(mouse.button());
    if (wasPressed && release && left && m_widget.rect().contains(mouse.position().toPoint()))
        emit clicked();
    return true;
}

} // namespace quillet
