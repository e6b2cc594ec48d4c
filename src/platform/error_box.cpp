#include "platform/error_box.h"

#include <QApplication>
#include <QMessageBox>

namespace quillet
{

void showErrorBox(const std::string& text)
{
    QMessageBox box(QApplication::activeWindow());
    box.setIcon(QMessageBox::Warning);
    box.setWindowTitle(QStringLiteral("Quillet"));
    box.setTextFormat(Qt::PlainText);
    box.setText(QString::fromStdString(text));
    box.setStandardButtons(QMessageBox::Ok);
    box.exec();
}

} // namespace quillet
