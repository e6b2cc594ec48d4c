#pragma once

#include "platform/screen_metrics.h"

#include <QSizeF>

namespace quillet
{

inline constexpr double designTwips = 15; // per pixel, in which the controls were designed
inline constexpr double statusBarDesignedHeight = 720; // twips

// Computes the main window's size from its picture. Sizes are in twips and include the frame and
// the menu bar, unless stated otherwise.
class WindowLayout
{
public:
    explicit WindowLayout(const ScreenMetrics& metrics) : m_metrics(metrics) {}

    [[nodiscard]] const ScreenMetrics& metrics() const { return m_metrics; }
    [[nodiscard]] int statusBarPixels() const;
    // The picture's size is in pixels.
    [[nodiscard]] QSizeF sizeForPicture(QSizeF picture) const;

    // Conversions between the outer size and the inner size in whole pixels.
    [[nodiscard]] QSizeF innerPixels(QSizeF outer) const;
    [[nodiscard]] QSizeF outerTwips(QSizeF innerPixels) const;

    [[nodiscard]] bool isTooNarrow(QSizeF outer) const;
    // The outer size with the minimum width.
    [[nodiscard]] QSizeF widened(QSizeF outer) const;

private:
    // The frame, the caption and the menu bar.
    [[nodiscard]] QSizeF frameAllowance() const;
    [[nodiscard]] double statusBarHeight() const;
    [[nodiscard]] QSizeF toTwips(QSizeF pixels) const;

    ScreenMetrics m_metrics;
};

} // namespace quillet
