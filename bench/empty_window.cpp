// The least that a window of the toolkit takes to start: one in the colour of the table, of its
// size.
#include <QApplication>
#include <QWidget>

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    QWidget window;
    window.setPalette(QColor(120, 70, 30));
    window.setFixedSize(800, 560);
    window.show();
    return QApplication::exec();
}
