#include "practice_window/message_strip.h"

#include "platform/accessible_widgets.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

namespace quillet::practice_window
{

MessageStrip::MessageStrip(QWidget* parent) : QFrame(parent), m_text(new QLabel)
{
    setFrameShape(QFrame::StyledPanel);
    presentAs(*this, QAccessible::Notification);
    m_text->setObjectName("message");
    m_text->setTextFormat(Qt::PlainText);
    m_text->setWordWrap(true);
    auto* close = new QPushButton("Dismiss");
    connect(close, &QPushButton::clicked, this, [this] {
        m_messages.clear();
        showAll();
    });
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(8, 4, 8, 4);
    row->addWidget(m_text, 1);
    row->addWidget(close);
    hide();
}

void MessageStrip::show(const QString& subject, const QString& message)
{
    if (m_messages.value(subject) == message)
        return;
    m_messages[subject] = message;
    // A new message appears, with those that are still true.
    if (!message.isEmpty())
        hide();
    showAll();
}

void MessageStrip::showAll()
{
    QStringList messages = m_messages.values();
    messages.removeAll(QString());
    m_text->setText("\u26a0  " + messages.join('\n'));
    setAccessibleName(messages.join(' '));
    setVisible(!messages.isEmpty());
}

} // namespace quillet::practice_window
