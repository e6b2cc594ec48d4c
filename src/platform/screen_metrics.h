#pragma once

namespace quillet
{

// The metrics for computing the size of the window. Sizes are in pixels. A pixel has 15 twips on a
// normal screen and 12 on a large-font screen. Qt scales by itself, so a real screen always counts
// as a normal one.
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
