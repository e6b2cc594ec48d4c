#include "platform/picture_file.h"

#include "engine/run_time_error.h"

#include <QFile>
#include <QImageReader>
#include <QtEndian>

#include <algorithm>
#include <cmath>

namespace quillet
{

namespace
{

constexpr qint64 mostPixels = 16'000'000;
constexpr int longestSide = 8192; // a window cannot be longer than a few screens
constexpr double normalDensity = 96.0;
constexpr double metresPerInch = 0.0254;

double pixelRatio(double dotsPerInch)
{
    const double ratio = dotsPerInch / normalDensity;
    const double whole = std::round(ratio);
    const bool marked = whole >= 2 && whole <= 4 && std::abs(ratio - whole) < 0.01;
    return marked ? whole : 1.0;
}

// Dots an inch by the head of a JPEG file, which is known before anything is decoded; 0 for
// another file, or where the head does not say.
double densityInHead(const QString& path)
{
    constexpr qsizetype length = 18;
    constexpr qsizetype unitAt = 13;
    QFile file(path);
    const QByteArray head = file.open(QIODevice::ReadOnly) ? file.read(length) : QByteArray();
    const bool inInches = head.size() == length && head.startsWith("\xff\xd8\xff\xe0") &&
                          head.mid(6, 4) == "JFIF" && head.at(unitAt) == 1;
    return inInches ? qFromBigEndian<quint16>(head.constData() + unitAt + 1) : 0;
}

} // namespace

LoadedPicture loadPictureFile(const QString& path, double scale)
{
    QImageReader reader(path);
    reader.setDecideFormatFromContent(true);
    const QSize size = reader.size(); // of the file's head; nothing is decoded yet
    if (qint64{size.width()} * size.height() > mostPixels ||
        std::max(size.width(), size.height()) > longestSide)
        throw RunTimeError("Picture too large: " + path.toStdString());
    const QSize shown = (size * (scale / pixelRatio(densityInHead(path))));
    if (shown.width() < size.width())
        reader.setScaledSize(shown);
    const QImage image = size.isEmpty() ? QImage() : reader.read();
    if (image.isNull())
        throw RunTimeError("Invalid picture: " + path.toStdString());
    return {image.convertToFormat(QImage::Format_RGB32),
            QSizeF(size) / pixelRatio(image.dotsPerMeterX() * metresPerInch)};
}

} // namespace quillet
