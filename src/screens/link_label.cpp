#include "screens/link_label.h"

#include "platform/accessible_widgets.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

namespace quillet
{

LinkLabel::LinkLabel(const QString& text, QWidget* parent) : QLabel(text, parent)
{
    presentAsLink(*this);
    setAccessibleName(text);
    setTextFormat(Qt::PlainText);
    setFocusPolicy(Qt::TabFocus);
    setCursor(Qt::PointingHandCursor);
    setContentsMargins(0, 2, 0, 2); // in one line with plain labels
    QFont underlined = font();
    underlined.setUnderline(true);
    setFont(underlined);
}

void LinkLabel::mousePressEvent(QMouseEvent* event)
{
    m_pressed = event->button() == Qt::LeftButton;
}

void LinkLabel::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return;
    const bool counts = m_pressed && rect().contains(event->position().toPoint());
    m_pressed = false;
    if (counts)
        emit clicked();
}

// This event stands in the place of the second press, and another release follows it. The
// inherited handler would treat it as a press, and the release would count as a second click.
void LinkLabel::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton)
        emit doubleClicked();
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

// Styles differ in whether they draw a focus frame around a label, so this draws its own.
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
