#include "table/masked_blit.h"

#include "faults/run_time_error.h"
#include "platform/desktop_colours.h"

#include <limits>

namespace quillet
{

namespace
{

int sixteenBits(std::int64_t size)
{
    using Limits = std::numeric_limits<std::int16_t>;
    if (size < Limits::min() || size > Limits::max())
        throw overflowError();
    return static_cast<int>(size);
}

} // namespace

void MaskedBlit(Surface& hdcDest, const Surface& hdcBack, const Surface& hdcSrc,
                const PixelRect& srcRect, double xDest, double yDest, std::uint32_t transColor)
{
    const int w = sixteenBits(std::int64_t{srcRect.right} - srcRect.left);
    const int h = sixteenBits(std::int64_t{srcRect.bottom} - srcRect.top);
    if (w <= 0 || h <= 0)
        return;
    const double scale = hdcDest.scale();
    const QRect from = deviceRect(QRectF(srcRect.left, srcRect.top, w, h), scale);
    const QPoint shift =
        QPoint(deviceOrigin(xDest, scale), deviceOrigin(yDest, scale)) - from.topLeft();
    const QRect area = (from & hdcSrc.image().rect()).translated(shift) & hdcDest.image().rect() &
                       hdcBack.image().rect();

    const QRgb transparent = colourOf(transColor).rgb();
    for (int y = area.top(); y <= area.bottom(); ++y) {
        const auto* source =
            reinterpret_cast<const QRgb*>(hdcSrc.image().constScanLine(y - shift.y()));
        const auto* back = reinterpret_cast<const QRgb*>(hdcBack.image().constScanLine(y));
        auto* dest = reinterpret_cast<QRgb*>(hdcDest.pixels().scanLine(y));
        for (int x = area.left(); x <= area.right(); ++x) {
            const QRgb pixel = source[x - shift.x()];
            dest[x] = (pixel | 0xff000000) == transparent ? back[x] : pixel;
        }
    }
}

} // namespace quillet
