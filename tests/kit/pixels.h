#pragma once

#include "cards/card_art.h"

#include <QImage>

#include <cmath>
#include <cstdlib>
#include <functional>
#include <vector>

namespace quillet::test
{

// A card at a scale factor, rounded as the table rounds it.
inline QImage cardAt(int cardNumber, double factor)
{
    return renderCard(cardNumber,
                      QSize(static_cast<int>(std::floor(cardArtWidth * factor + 0.5)),
                            static_cast<int>(std::floor(cardArtHeight * factor + 0.5))));
}

// The number of pixels whose grey values differ by more than the tolerance, of 255.
inline int greyDifference(const QImage& first, const QImage& second, int steps)
{
    int different = 0;
    for (int y = 0; y < first.height(); ++y)
        for (int x = 0; x < first.width(); ++x)
            if (std::abs(qGray(first.pixel(x, y)) - qGray(second.pixel(x, y))) > steps)
                ++different;
    return different;
}

// Only the ink of the hatch, on a transparent background.
inline QImage inkOf(const QImage& hatch)
{
    QImage ink = hatch.convertToFormat(QImage::Format_ARGB32);
    for (int y = 0; y < ink.height(); ++y)
        for (int x = 0; x < ink.width(); ++x)
            if (ink.pixel(x, y) == qRgb(255, 255, 255))
                ink.setPixel(x, y, qRgba(0, 0, 0, 0));
    return ink;
}

// Connected pixels.
struct Region {
    QRect around;
    int pixels = 0;
};

// The regions of the pixels that belong.
inline std::vector<Region> regions(const QImage& image, const std::function<bool(QRgb)>& belongs)
{
    std::vector<Region> found;
    QImage seen(image.size(), QImage::Format_Mono);
    seen.fill(0);
    for (int i = 0; i < image.width() * image.height(); ++i) {
        Region region;
        std::vector<QPoint> open{{i % image.width(), i / image.width()}};
        while (!open.empty()) {
            const QPoint at = open.back();
            open.pop_back();
            if (!image.valid(at) || seen.pixelIndex(at) == 1 || !belongs(image.pixel(at)))
                continue;
            seen.setPixel(at, 1);
            region.around |= QRect(at, QSize(1, 1));
            ++region.pixels;
            for (const QPoint& step : {QPoint(1, 0), QPoint(-1, 0), QPoint(0, 1), QPoint(0, -1)})
                open.push_back(at + step);
        }
        if (region.pixels > 0)
            found.push_back(region);
    }
    return found;
}

} // namespace quillet::test
