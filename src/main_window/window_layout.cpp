#include "main_window/window_layout.h"

#include "table/table_geometry.h"

#include <cmath>

namespace quillet
{

namespace
{

constexpr double statusBarNormalHeight = 900; // twips, unless fonts are large
constexpr double windowMinimumWidth = 640;    // pixels, frame included
constexpr double frameSlack = 40;             // twips, each way
constexpr double largeFontWidening = 1.055;

} // namespace

QSizeF WindowLayout::frameAllowance() const
{
    const QSizeF pixels(4 * m_metrics.borderWidth, 4 * m_metrics.borderHeight +
                                                       m_metrics.captionHeight +
                                                       m_metrics.menuHeight);
    return pixels * m_metrics.twipsPerPixel + QSizeF(frameSlack, frameSlack);
}

double WindowLayout::statusBarHeight() const
{
    return m_metrics.largeFonts() ? statusBarDesignedHeight : statusBarNormalHeight;
}

int WindowLayout::statusBarPixels() const
{
    return static_cast<int>(statusBarHeight() / m_metrics.twipsPerPixel);
}

QSizeF WindowLayout::sizeForPicture(QSizeF picture) const
{
    QSizeF size = outerTwips(picture) + QSizeF(0, statusBarHeight());
    if (m_metrics.largeFonts())
        size.rwidth() *= largeFontWidening;
    else
        size.rheight() += frameEdgeHeight * m_metrics.twipsPerPixel;
    return size;
}

QSizeF WindowLayout::innerPixels(QSizeF outer) const
{
    const QSizeF inner = (outer - frameAllowance()) / m_metrics.twipsPerPixel;
    return {std::floor(inner.width()), std::floor(inner.height())};
}

QSizeF WindowLayout::outerTwips(QSizeF innerPixels) const
{
    return innerPixels * m_metrics.twipsPerPixel + frameAllowance();
}

bool WindowLayout::isTooNarrow(QSizeF outer) const
{
    return innerPixels(outer).width() < windowMinimumWidth;
}

QSizeF WindowLayout::widened(QSizeF outer) const
{
    return {windowMinimumWidth * m_metrics.twipsPerPixel, outer.height()};
}

} // namespace quillet
