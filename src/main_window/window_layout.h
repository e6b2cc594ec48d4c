#pragma once

#include "platform/screen_metrics.h"

#include <QSizeF>

namespace quillet
{

// Designed heights of the status bar: its own, and on a normal screen.
inline constexpr double statusBarDesignedHeight = 720; // twips
inline constexpr double statusBarNormalHeight = 900;   // twips
inline constexpr double windowMinimumWidth = 640;      // pixels, frame included

// How the main window's size follows from the picture. All sizes in twips, frame and menu bar
// included, unless said otherwise.
class WindowLayout
{
public:
    explicit WindowLayout(const ScreenMetrics& metrics) : m_metrics(metrics) {}

    // What the frame, the caption and the menu bar take.
    [[nodiscard]] QSizeF frameAllowance() const;
    [[nodiscard]] double statusBarHeight() const;
    [[nodiscard]] QSizeF sizeForPicture(QSizeF picture, double topPieceHeight) const;

    // Conversions between the outer size and the inner size in whole pixels.
    [[nodiscard]] QSizeF innerPixels(QSizeF outer) const;
    [[nodiscard]] QSizeF outerTwips(QSizeF innerPixels) const;

    // The outer size, the minimum width wide.
    [[nodiscard]] QSizeF widened(QSizeF outer) const;
    [[nodiscard]] bool isTooNarrow(QSizeF innerPixels) const;

private:
    ScreenMetrics m_metrics;
};

} // namespace quillet
