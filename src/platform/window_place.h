#pragma once

#include <QObject>
#include <QPoint>

#include <optional>

class QWidget;

namespace quillet
{

// Remembers where a window lies on the screen, and brings it back there from a state that was
// forced on it.
class WindowPlace : public QObject
{
    Q_OBJECT

public:
    // The window outlives this.
    explicit WindowPlace(QWidget& window);

    // The window has just been shown anew.
    void comeBack();

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void moved();

    QWidget& m_window;
    std::optional<QPoint> m_place; // of the inner area on the screen
    bool m_comingBack = false;
};

// Shows the window and waits, a second at most, until it is on the display.
void showAndWaitUntilExposed(QWidget& window);

} // namespace quillet
