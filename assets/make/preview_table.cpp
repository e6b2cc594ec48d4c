// Shows how the pictures meet in the window: the table, its frame as the window stretches it, and
// blank cards, chart and status bar in their places.
#include "assets/make/pictures/table_geometry.h"

#include <QDir>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>

#include <iostream>

namespace
{

using namespace quillet;

void paintFrame(QPainter& painter, const QDir& assets)
{
    const auto piece = [&](const char* name, const QRectF& place) {
        const QImage image(assets.filePath(QString("frame/%1.png").arg(name)));
        painter.drawImage(place, image);
    };
    piece("top", {0, 0, 800, 14});
    piece("bottom", {0, 428, 800, 14});
    piece("side1", {0, 0, 13, 514});
    piece("side2", {787, 0, 13, 514});
    piece("bottom", {0, 500, 800, 14});
    piece("side2", {606, 0, 13, 514});
}

void paintCards(QPainter& painter)
{
    painter.setPen(QPen(QColor(0x80, 0x80, 0x80), 1));
    painter.setBrush(Qt::white);
    for (const QRectF& place : cardPlaces())
        painter.drawRoundedRect(place.adjusted(0.5, 0.5, -0.5, -0.5), 6, 6);
    painter.setBrush(QColor(0x24, 0x3c, 0x7a));
    painter.drawRoundedRect(QRectF(deckSeen.topLeft(), QSizeF(96, 130)), 6, 6);
}

} // namespace

int main(int argc, char** argv)
{
    QGuiApplication application(argc, argv);
    if (argc < 4 || argc > 5) {
        std::cerr << "usage: preview_table ASSETS TABLE.jpg SCALE [OUT.png]\n";
        return 2;
    }
    const QDir assets(QString::fromLocal8Bit(argv[1]));
    const double scale = QByteArray(argv[3]).toDouble();
    QImage window(QSizeF(800 * scale, 514 * scale).toSize(), QImage::Format_RGB32);
    window.fill(Qt::black);
    QPainter painter(&window);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    painter.scale(scale, scale);
    const QImage table(assets.filePath(QString("pics/") + argv[2]));
    painter.drawImage(QRectF(0, 0, 800, 440), table);
    paintFrame(painter, assets);
    paintCards(painter);
    painter.fillRect(QRectF(619, 12, 169, 490), QColor(0xf0, 0xf0, 0xf0));
    painter.end();
    return window.save(argc == 5 ? argv[4] : "preview.png") ? 0 : 1;
}
