#pragma once

#include <QAbstractNativeEventFilter>
#include <QObject>
#include <QWidget>

namespace quillet
{

// Tells when another program has destroyed the window on the X server, as the toolkit does not:
// the process would live on unseen. On other platforms nobody can do that.
class WindowLoss : public QObject, private QAbstractNativeEventFilter
{
    Q_OBJECT

public:
    // Makes the window one of the desktop's, if it is not yet. It outlives this object.
    explicit WindowLoss(QWidget& window);
    ~WindowLoss() override;

signals:
    void windowLost();

private:
    bool nativeEventFilter(const QByteArray& eventType, void* message, qintptr* result) override;

    WId m_window;
};

} // namespace quillet
