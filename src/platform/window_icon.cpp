#include "platform/window_icon.h"

#include <QApplication>
#include <QIcon>
#include <QTimer>

namespace quillet
{

void useWindowIcon(const QString& name)
{
    QTimer::singleShot(0, [name] {
        QIcon icon;
        // Window managers use no larger ones.
        for (const int size : {16, 22, 24, 32, 48, 64, 128})
            icon.addFile(QStringLiteral(":/icons/%1-%2.png").arg(name).arg(size));
        QApplication::setWindowIcon(icon);
    });
}

} // namespace quillet
