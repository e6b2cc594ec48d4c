#include "screens/link_label.h"

#include <QAccessibleWidget>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

namespace quillet
{

namespace
{

// Tells a screen reader that the text is a link and lets it be followed from there.
class LinkLabelAccess : public QAccessibleWidget
{
public:
    explicit LinkLabelAccess(LinkLabel* label) : QAccessibleWidget(label, QAccessible::Link) {}

    [[nodiscard]] QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Name ? label()->text() : QAccessibleWidget::text(kind);
    }
    [[nodiscard]] QStringList actionNames() const override
    {
        return QStringList(pressAction()) + QAccessibleWidget::actionNames();
    }
    void doAction(const QString& actionName) override
    {
        if (actionName == pressAction())
            emit label()->clicked();
        else
            QAccessibleWidget::doAction(actionName);
    }

private:
    [[nodiscard]] LinkLabel* label() const { return static_cast<LinkLabel*>(widget()); }
};

QAccessibleInterface* accessForLinkLabels(const QString& /*className*/, QObject* object)
{
    auto* label = qobject_cast<LinkLabel*>(object);
    return label == nullptr ? nullptr : new LinkLabelAccess(label);
}

} // namespace

LinkLabel::LinkLabel(const QString& text, QWidget* parent) : QLabel(text, parent)
{
    QAccessible::installFactory(accessForLinkLabels);
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
