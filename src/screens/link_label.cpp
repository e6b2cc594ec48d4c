#include "screens/link_label.h"

#include "platform/accessible_widgets.h"
#include "platform/click_tracker.h"

#include <QKeyEvent>
#include <QPainter>

namespace quillet
{

LinkLabel::LinkLabel(const QString& text, QWidget* parent) : QLabel(text, parent)
{
    presentAs(*this, QAccessible::Link);
    setAccessibleName(text);
    setTextFormat(Qt::PlainText);
    setFocusPolicy(Qt::TabFocus);
    setCursor(Qt::PointingHandCursor);
    setContentsMargins(0, 2, 0, 2); // aligned with plain labels
    QFont underlined = font();
    underlined.setUnderline(true);
    setFont(underlined);

    auto* clicks = new ClickTracker(*this);
    connect(clicks, &ClickTracker::clicked, this, &LinkLabel::clicked);
    connect(clicks, &ClickTracker::doubleClicked, this, [this](Qt::MouseButton button) {
        if (button == Qt::LeftButton)
            emit doubleClicked();
    });
}

void LinkLabel::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
        if (!event->isAutoRepeat())
            emit clicked();
        break;
    default:
        QLabel::keyPressEvent(event);
    }
}

// Not every style draws a focus frame around labels.
void LinkLabel::paintEvent(QPaintEvent* event)
{
    QLabel::paintEvent(event);
    if (!hasFocus())
        return;
    QPainter painter(this);
    painter.setPen(QPen(palette().color(foregroundRole()), 1, Qt::DotLine));
    painter.drawRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5));
}

} // namespace quillet
