#pragma once

#include <QWidget>

namespace quillet
{

// Turns the mouse events of a widget into clicks. It is a child of the widget and takes the
// events, so that they do not reach the widget's parent either.
class ClickTracker : public QObject
{
    Q_OBJECT

public:
    explicit ClickTracker(QWidget& widget);

    // An inactive tracker takes the events but sends no signal.
    void setActive(bool active) { m_active = active; }

signals:
    // Any button.
    void pressed();
    // The left button was pressed and released over the widget. A double click is one click.
    void clicked();
    // Sent instead of pressed() for the second press.
    void doubleClicked(Qt::MouseButton button);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QWidget& m_widget;
    bool m_active = true;
    bool m_leftPressed = false;
};

} // namespace quillet
