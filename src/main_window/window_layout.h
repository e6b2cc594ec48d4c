#pragma once

#include <QSizeF>

namespace quillet
{

inline constexpr double designTwips = 15; // per pixel, in which the controls were designed
inline constexpr double statusBarDesignedHeight = 720; // twips

// The metrics for computing the size of the window. Sizes are in pixels. A pixel has 15 twips on a
// normal screen and 12 on a large-font screen. Qt scales by itself, so a real screen always counts
// as a normal one.
struct ScreenMetrics {
    double twipsPerPixel = designTwips;
    double borderWidth = 1;
    double borderHeight = 1;
    double captionHeight = 19;
    double menuHeight = 19;

    [[nodiscard]] bool largeFonts() const { return twipsPerPixel == 12; }
};

// Computes the main window's size from its picture. Sizes are in twips and include the frame and
// the menu bar, unless stated otherwise.
class WindowLayout
{
public:
    explicit WindowLayout(const ScreenMetrics& metrics = {}) : m_metrics(metrics) {}

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

    ScreenMetrics m_metrics;
};

} // namespace quillet
