#pragma once

namespace quillet
{

// The metrics for computing the size of the window. Sizes in pixels, conversions in twips per
// pixel: 15 on a normal screen, 12 on a large-font screen. The toolkit scales by itself, so the
// desktop's own screens always count as normal ones.
struct ScreenMetrics {
    double twipsPerPixelX = 15;
    double twipsPerPixelY = 15;
    double borderWidth = 1;
    double borderHeight = 1;
    double captionHeight = 19;
    double menuHeight = 19;

    [[nodiscard]] bool largeFonts() const { return twipsPerPixelX == 12; }
};

} // namespace quillet
