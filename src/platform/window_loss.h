#pragma once

#include <QAbstractNativeEventFilter>
#include <QObject>

namespace quillet
{

// Closes a window or dialog that another program has destroyed on the X server, as its close box
// would. Qt does not notice: the process would run on without a window, or wait forever for a
// dialog that nobody can see. On other platforms, no program can do that to another.
class WindowLoss : public QObject, private QAbstractNativeEventFilter
{
    Q_OBJECT

public:
    WindowLoss();
    ~WindowLoss() override;

private:
    bool nativeEventFilter(const QByteArray& eventType, void* message, qintptr* result) override;
};

} // namespace quillet
