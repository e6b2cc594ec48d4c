#include "assets/make/pictures/icon.h"
#include "assets/make/pictures/pictures.h"
#include "assets/make/pictures/pointer.h"
#include "assets/make/pictures/table_geometry.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QImage>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <cmath>

namespace quillet::test
{

namespace
{

const QDir assets(QUILLET_ASSETS_FOLDER);

QStringList filesBelow(const QDir& folder)
{
    QStringList names;
    for (const char* part : {"pics", "frame", "icons", "pointer"}) {
        QDirIterator files(folder.filePath(part), QDir::Files, QDirIterator::Subdirectories);
        while (files.hasNext())
            names << folder.relativeFilePath(files.next());
    }
    names.sort();
    return names;
}

QByteArray content(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QStringList tables()
{
    return QDir(assets.filePath("pics")).entryList({"*.jpg"}, QDir::Files);
}

double luminance(QRgb pixel)
{
    const auto linear = [](int part) {
        const double value = part / 255.0;
        return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(qRed(pixel)) + 0.7152 * linear(qGreen(pixel)) +
           0.0722 * linear(qBlue(pixel));
}

QRect inPixels(const QRectF& place)
{
    return QRectF(place.topLeft() * tableScale, place.size() * tableScale).toAlignedRect();
}

// The least contrast of white to the pixels of a narrow band round the rectangle.
double whiteEdgeContrast(const QImage& table, const QRect& card)
{
    const QRect band = card.adjusted(-4, -4, 4, 4);
    double brightest = 0;
    for (int y = band.top(); y <= band.bottom(); ++y)
        for (int x = band.left(); x <= band.right(); ++x)
            if (!card.contains(x, y))
                brightest = std::max(brightest, luminance(table.pixel(x, y)));
    return 1.05 / (brightest + 0.05);
}

// How much the grey values scatter within one square of the table.
double scatter(const QImage& table, const QPoint& corner, int side)
{
    double sum = 0;
    double squares = 0;
    for (int y = 0; y < side; ++y)
        for (int x = 0; x < side; ++x) {
            const double grey = qGray(table.pixel(corner + QPoint(x, y)));
            sum += grey;
            squares += grey * grey;
        }
    const double count = side * side;
    return std::sqrt(std::max(0.0, squares / count - (sum / count) * (sum / count)));
}

} // namespace

TEST(Pictures, comeOutOfTheirProgramAsTheyAreCommitted)
{
    const QTemporaryDir folder;
    writePictures(folder.path());
    const QStringList written = filesBelow(folder.path());
    EXPECT_EQ(written, filesBelow(assets));
    for (const QString& name : written)
        EXPECT_TRUE(content(folder.filePath(name)) == content(assets.filePath(name)))
            << name.toStdString();
}

TEST(Tables, areKeptAtTwiceTheirSizeAndSayItByTheirDensity)
{
    EXPECT_GE(tables().size(), 3);
    EXPECT_TRUE(tables().contains("vpokerwood.jpg"));
    for (const QString& name : tables()) {
        const QByteArray bytes = content(assets.filePath("pics/" + name));
        const QImage table = QImage::fromData(bytes);
        EXPECT_EQ(table.size(), QSize(1600, 880)) << name.toStdString();
        EXPECT_EQ(table.dotsPerMeterX(), 7559) << name.toStdString();
        EXPECT_EQ(table.dotsPerMeterY(), 7559) << name.toStdString();
        EXPECT_LT(bytes.size(), 900 * 1024) << name.toStdString();
    }
}

TEST(Tables, letEveryCardEdgeStandOutAndAreQuietUnderTheCards)
{
    constexpr int square = 16;
    for (const QString& name : tables()) {
        SCOPED_TRACE(name.toStdString());
        const QImage table(assets.filePath("pics/" + name));
        EXPECT_GE(whiteEdgeContrast(table, inPixels(deckPlace)), 3);
        for (const QRectF& place : cardPlaces()) {
            const QRect card = inPixels(place);
            EXPECT_GE(whiteEdgeContrast(table, card), 3) << place.left();
            double worst = 0;
            for (int y = card.top(); y + square <= card.bottom(); y += square)
                for (int x = card.left(); x + square <= card.right(); x += square)
                    worst = std::max(worst, scatter(table, {x, y}, square));
            EXPECT_LT(worst, 9) << place.left();
        }
    }
}

TEST(Icons, fillEverySizeAndLeaveTheCornersClear)
{
    for (const int size : iconSizes) {
        const QImage icon(QString(":/icons/quillet-%1.png").arg(size));
        ASSERT_EQ(icon.size(), QSize(size, size));
        EXPECT_EQ(qAlpha(icon.pixel(size / 2, size / 2)), 255) << size;
        EXPECT_LT(qAlpha(icon.pixel(size - 1, size - 1)), 40) << size;
    }
}

TEST(Pointer, itsHotSpotIsTheTipOfTheFinger)
{
    for (const int scale : {1, 2}) {
        const QImage hand(scale == 1 ? ":/pointer/hand.png" : ":/pointer/hand@2x.png");
        ASSERT_EQ(hand.size(), QSize(32, 32) * scale);
        EXPECT_EQ(qAlpha(hand.pixel(handHotSpot * scale)), 255);
        int top = 0;
        while (qAlpha(hand.pixel(handHotSpot.x() * scale, top)) == 0)
            ++top;
        EXPECT_LE(handHotSpot.y() * scale - top, 3 * scale);
    }
}

} // namespace quillet::test
