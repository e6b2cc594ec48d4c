#include "assets/make/pictures/pictures.h"
#include "tests/kit/file_text.h"

#include <QDir>
#include <QDirIterator>
#include <QImage>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <cstdlib>

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

// The mean difference of two pictures' colours, 0 to 255. Another version of Qt may draw edges
// slightly differently.
double difference(const QString& one, const QString& other)
{
    if (one.endsWith(".svg"))
        return fileText(one.toStdString()) == fileText(other.toStdString()) ? 0 : 255;
    const QImage first = QImage(one).convertToFormat(QImage::Format_ARGB32);
    const QImage second = QImage(other).convertToFormat(QImage::Format_ARGB32);
    if (first.isNull() || first.size() != second.size())
        return 255;
    double sum = 0;
    for (qsizetype i = 0; i < first.sizeInBytes(); ++i)
        sum += std::abs(first.constBits()[i] - second.constBits()[i]);
    return sum / static_cast<double>(first.sizeInBytes());
}

} // namespace

TEST(Pictures, areWrittenAsTheyAreCommitted)
{
    const QTemporaryDir folder;
    artwork::writePictures(folder.path());
    const QStringList written = filesBelow(folder.path());
    EXPECT_EQ(written, filesBelow(assets));
    for (const QString& name : written)
        EXPECT_LT(difference(folder.filePath(name), assets.filePath(name)), 1)
            << name.toStdString();
}

} // namespace quillet::test
