// The lower limit for the trainer's start: an empty window of the same size and colour.
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
