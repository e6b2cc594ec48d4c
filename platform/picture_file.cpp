#include "platform/picture_file.h"

#include "engine/run_time_error.h"

#include <QImageReader>

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

double pixelRatio(const QImage& image)
{
    const double ratio = image.dotsPerMeterX() * metresPerInch / normalDensity;
    const double whole = std::round(ratio);
    const bool marked = whole >= 2 && whole <= 4 && std::abs(ratio - whole) < 0.01;
    return marked ? whole : 1.0;
}

} // namespace

QImage loadPictureFile(const QString& path)
{
    QImageReader reader(path);
    reader.setDecideFormatFromContent(true);
    const QSize size = reader.size(); // of the file's head; nothing is decoded yet
    if (qint64{size.width()} * size.height() > mostPixels ||
        std::max(size.width(), size.height()) > longestSide)
        throw RunTimeError("Picture too large: " + path.toStdString());
    QImage image = size.isEmpty() ? QImage() : reader.read();
    if (image.isNull())
        throw RunTimeError("Invalid picture: " + path.toStdString());
    image.setDevicePixelRatio(pixelRatio(image));
    return image;
}

} // namespace quillet
