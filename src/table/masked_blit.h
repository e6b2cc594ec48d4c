#pragma once

#include "table/surface.h"

#include <cstdint>

namespace quillet
{

// In logical pixels of the source; right and bottom are exclusive.
struct PixelRect {
    std::int32_t left = 0;
    std::int32_t top = 0;
    std::int32_t right = 0;
    std::int32_t bottom = 0;
};

// Copies the source rectangle to the destination. Pixels of exactly the transparent colour
// (0x00BBGGRR) are taken from the background picture instead, which may be the destination itself.
// Clipped to all three pictures; inverted rectangles are empty. Throws RunTimeError for a width or
// height beyond 16 bits.
void MaskedBlit(Surface& hdcDest, const Surface& hdcBack, const Surface& hdcSrc,
                const PixelRect& srcRect, double xDest, double yDest, std::uint32_t transColor);

} // namespace quillet
