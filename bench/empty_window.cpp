// The minimum that a window with text takes to start: a label of the table's size and colour.
#include <QApplication>
#include <QLabel>

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    QLabel window("Welcome");
    window.setPalette(QColor(120, 70, 30));
    window.setFixedSize(800, 560);
    window.show();
    return QApplication::exec();
}
