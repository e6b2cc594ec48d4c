#include "main_window/window_layout.h"

#include <cmath>

namespace quillet
{

namespace
{

constexpr double frameSlack = 40; // twips, each way
constexpr double largeFontWidening = 1.055;

} // namespace

QSizeF WindowLayout::frameAllowance() const
{
    const double x = m_metrics.twipsPerPixelX;
    const double y = m_metrics.twipsPerPixelY;
    return {4 * m_metrics.borderWidth * x + frameSlack,
            (4 * m_metrics.borderHeight + m_metrics.captionHeight + m_metrics.menuHeight) * y +
                frameSlack};
}

double WindowLayout::statusBarHeight() const
{
    return m_metrics.largeFonts() ? statusBarDesignedHeight : statusBarNormalHeight;
}

QSizeF WindowLayout::sizeForPicture(QSizeF picture, double topPieceHeight) const
{
    QSizeF size = picture + frameAllowance() + QSizeF(0, statusBarHeight());
    if (m_metrics.largeFonts())
        size.rwidth() *= largeFontWidening;
    else
        size.rheight() += topPieceHeight;
    return size;
}

QSizeF WindowLayout::innerPixels(QSizeF outer) const
{
    const QSizeF inner = outer - frameAllowance();
    return {std::floor(inner.width() / m_metrics.twipsPerPixelX),
            std::floor(inner.height() / m_metrics.twipsPerPixelY)};
}

QSizeF WindowLayout::outerTwips(QSizeF innerPixels) const
{
    return QSizeF(innerPixels.width() * m_metrics.twipsPerPixelX,
                  innerPixels.height() * m_metrics.twipsPerPixelY) +
           frameAllowance();
}

QSizeF WindowLayout::widened(QSizeF outer) const
{
    return {windowMinimumWidth * m_metrics.twipsPerPixelX, outer.height()};
}

bool WindowLayout::isTooNarrow(QSizeF innerPixels) const
{
    return innerPixels.width() < windowMinimumWidth;
}

} // namespace quillet
