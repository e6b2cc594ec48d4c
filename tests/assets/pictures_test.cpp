#include "assets/make/pictures/pictures.h"
#include "assets/make/pictures/table_geometry.h"
#include "platform/colour_contrast.h"
#include "tests/kit/pixels.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QImage>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <vector>

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

// The mean difference of two pictures' colours, 0 to 255. Another release of the toolkit may draw
// an edge a shade differently.
double difference(const QString& one, const QString& other)
{
    if (one.endsWith(".svg"))
        return content(one) == content(other) ? 0 : 255;
    const QImage first = QImage(one).convertToFormat(QImage::Format_ARGB32);
    const QImage second = QImage(other).convertToFormat(QImage::Format_ARGB32);
    if (first.isNull() || first.size() != second.size())
        return 255;
    double sum = 0;
    for (qsizetype i = 0; i < first.sizeInBytes(); ++i)
        sum += std::abs(first.constBits()[i] - second.constBits()[i]);
    return sum / static_cast<double>(first.sizeInBytes());
}

QRect inPixels(const QRectF& place)
{
    return QRectF(place.topLeft() * artwork::tableScale, place.size() * artwork::tableScale)
        .toAlignedRect();
}

// The least contrast of white to the pixels of a narrow band round the rectangle.
double whiteEdgeContrast(const QImage& table, const QRect& card)
{
    const QRect band = card.adjusted(-4, -4, 4, 4);
    double least = 21;
    for (int y = band.top(); y <= band.bottom(); ++y)
        for (int x = band.left(); x <= band.right(); ++x)
            if (!card.contains(x, y))
                least = std::min(least, contrast(Qt::white, table.pixelColor(x, y)));
    return least;
}

// How many pixels from the cards the nearest line across the tray lies, upwards (-1) or downwards
// (1); a line is brighter than what is between it and the cards.
int distanceToLine(const QImage& table, const QRect& cards, int way)
{
    constexpr int farthest = 20;
    std::vector<double> brightness;
    for (int away = 1; away <= farthest; ++away) {
        const int y = way < 0 ? cards.top() - away : cards.bottom() + away;
        double sum = 0;
        for (int x = cards.left(); x <= cards.right(); ++x)
            sum += qGray(table.pixel(x, y));
        brightness.push_back(sum / cards.width());
    }
    const auto line = std::find_if(brightness.begin(), brightness.end(),
                                   [&](double row) { return row > brightness.front() + 15; });
    return static_cast<int>(line - brightness.begin()) + 1;
}

} // namespace

TEST(Pictures, comeOutOfTheirProgramAsTheyAreCommitted)
{
    const QTemporaryDir folder;
    artwork::writePictures(folder.path());
    const QStringList written = filesBelow(folder.path());
    EXPECT_EQ(written, filesBelow(assets));
    for (const QString& name : written)
        EXPECT_LT(difference(folder.filePath(name), assets.filePath(name)), 1)
            << name.toStdString();
}

TEST(Icon, isOneShapeWithoutStraySpecks)
{
    const QImage icon(assets.filePath("icons/quillet-512.png"));
    ASSERT_EQ(icon.size(), QSize(512, 512));
    EXPECT_EQ(regions(icon, [](QRgb pixel) { return qAlpha(pixel) > 0; }).size(), 1U);
    for (const Region& white : regions(icon, [](QRgb pixel) { return qGray(pixel) > 225; }))
        EXPECT_GT(white.pixels, 40);
}

TEST(Tables, letEveryCardEdgeStandOutInTheMiddleOfItsTray)
{
    const QDir tables(assets.filePath("pics"));
    EXPECT_GE(tables.count(), 3U);
    for (const QString& name : tables.entryList({"*.jpg"}, QDir::Files)) {
        SCOPED_TRACE(name.toStdString());
        const QImage table(tables.filePath(name));
        EXPECT_EQ(table.size(), QSize(1600, 880));
        EXPECT_EQ(table.dotsPerMeterX(), 7559) << "twice its size";
        EXPECT_GE(whiteEdgeContrast(table, inPixels(artwork::deckSeen())), 3);
        for (const QRectF& place : artwork::cardPlaces())
            EXPECT_GE(whiteEdgeContrast(table, inPixels(place)), 3) << place.left();

        const QRect cards = inPixels(artwork::cardPlaces().front() | artwork::cardPlaces().back());
        const int above = distanceToLine(table, cards, -1);
        EXPECT_LE(above, 14);
        EXPECT_NEAR(above, distanceToLine(table, cards, 1), 2) << "in the middle of the tray";
    }
}

} // namespace quillet::test
