#pragma once

#include <QFrame>
#include <QMap>

class QLabel;

namespace quillet::practice_window
{

// What went wrong, at the foot of the window, until it is over or the player closes it. One message
// for each subject.
class MessageStrip : public QFrame
{
    Q_OBJECT

public:
    explicit MessageStrip(QWidget* parent = nullptr);

    // Has readers say a message that is new. An empty one takes the subject's message away.
    void show(const QString& subject, const QString& message);

private:
    void showAll();

    QMap<QString, QString> m_messages;
    QLabel* m_text;
};

} // namespace quillet::practice_window
