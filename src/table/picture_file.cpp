#include "table/picture_file.h"

#include "faults/run_time_error.h"

#include <QBuffer>
#include <QFile>
#include <QImageReader>
#include <QtEndian>

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace quillet
{

namespace
{

constexpr qint64 maxPixels = 16'000'000;
constexpr qint64 maxFileSize = 4 * maxPixels + 100'000; // of a bitmap, with its header
constexpr int maxSide = 8192; // a window cannot be longer than a few screens
constexpr double normalDensity = 96.0;
constexpr double metresPerInch = 0.0254;

double pixelRatio(double dotsPerInch)
{
    const double ratio = dotsPerInch / normalDensity;
    const double whole = std::round(ratio);
    const bool marked = whole >= 2 && whole <= 4 && std::abs(ratio - whole) < 0.01;
    return marked ? whole : 1.0;
}

// Dots per inch in the header of a JPEG file, known before decoding; 0 if unknown.
double densityInHead(const QByteArray& head)
{
    constexpr qsizetype length = 18;
    constexpr qsizetype unitAt = 13;
    const bool inInches = head.size() >= length && head.startsWith("\xff\xd8\xff\xe0") &&
                          head.mid(6, 4) == "JFIF" && head.at(unitAt) == 1;
    return inInches ? qFromBigEndian<quint16>(head.constData() + unitAt + 1) : 0;
}

// Whether the file has its end; decoders make up the missing part of a picture. A JPEG may contain
// a small picture, with its own end marker, before its last scan. Some programs append a few bytes
// to a GIF. Other formats are left to the decoder.
bool isComplete(const QByteArray& file)
{
    if (file.startsWith("\xff\xd8"))
        return file.indexOf("\xff\xd9", file.lastIndexOf("\xff\xda")) > 0;
    if (file.startsWith("GIF8"))
        return file.right(64).contains(QByteArrayView("\0;", 2));
    constexpr qsizetype sizeAt = 2;
    return !file.startsWith("BM") || file.size() < sizeAt + qsizetype{sizeof(quint32)} ||
           qFromLittleEndian<quint32>(file.constData() + sizeAt) <= file.size();
}

} // namespace

LoadedPicture loadPictureFile(const QString& path, double scale)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly) || file.size() > maxFileSize)
        throw RunTimeError("Invalid picture: " + path.toStdString());
    QByteArray bytes = file.readAll();
    // Checked first, because decoders complain on stderr.
    if (!isComplete(bytes))
        throw RunTimeError("Invalid picture: " + path.toStdString());
    QBuffer buffer(&bytes);
    QImageReader reader(&buffer);
    reader.setDecideFormatFromContent(true);
    // From the header; nothing is decoded yet. A bitmap stored from the top down has a negative
    // height.
    const QSize size(reader.size().width(), std::abs(reader.size().height()));
    if (qint64{size.width()} * size.height() > maxPixels ||
        std::max(size.width(), size.height()) > maxSide)
        throw RunTimeError("Picture too large: " + path.toStdString());
    const QSize shown = (size * (scale / pixelRatio(densityInHead(bytes))));
    if (shown.width() < size.width())
        reader.setScaledSize(shown);
    const QImage image = size.isEmpty() ? QImage() : reader.read();
    if (image.isNull())
        throw RunTimeError("Invalid picture: " + path.toStdString());
    return {image.convertToFormat(QImage::Format_RGB32),
            QSizeF(size) / pixelRatio(image.dotsPerMeterX() * metresPerInch)};
}

} // namespace quillet
