#include "cards/backs.h"
#include "cards/card_art.h"

#include <algorithm>
#include <cmath>

namespace quillet
{
namespace
{

// Brass: visible on dark wood, and black and red marks under it stay readable.
constexpr QRgb ink = 0xffb98a2e;
constexpr QRgb paper = 0xffffffff;

// The distance of a pixel's centre from the card's rounded edge; negative outside the card.
double depthInside(int x, int y, QSize size, double radius)
{
    const double fromSide = std::min(x, size.width() - 1 - x) + 0.5;
    const double fromEnd = std::min(y, size.height() - 1 - y) + 0.5;
    if (fromSide >= radius || fromEnd >= radius)
        return std::min(fromSide, fromEnd);
    return radius - std::hypot(radius - fromSide, radius - fromEnd);
}

} // namespace

QImage hatchPicture(QSize deviceSize)
{
    QImage picture(deviceSize, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    const double scale = deviceSize.width() / double(cardArtWidth);
    const int line = std::max(1, static_cast<int>(std::lround(scale)));
    // Wider if the line was rounded up, so that the ink covers less than a quarter.
    const int period = static_cast<int>(std::lround(8 * std::max(scale, double(line)))) * 2;
    const double radius = 6 * scale;
    const int innerFrom = static_cast<int>(std::lround(3 * scale));

    // Measured from the centre, so that the lattice is symmetric in both directions.
    const auto onLattice = [&](int x, int y) {
        const int fromMiddleX = std::max(x, deviceSize.width() - 1 - x) - deviceSize.width() / 2;
        const int fromMiddleY = std::max(y, deviceSize.height() - 1 - y) - deviceSize.height() / 2;
        const int falling = ((fromMiddleX - fromMiddleY) % period + period) % period;
        const int rising = (fromMiddleX + fromMiddleY + 1) % period;
        return falling < line || rising < line;
    };
    for (int y = 0; y < deviceSize.height(); ++y) {
        auto* const row = reinterpret_cast<QRgb*>(picture.scanLine(y));
        for (int x = 0; x < deviceSize.width(); ++x) {
            const double depth = depthInside(x, y, deviceSize, radius);
            if (depth <= 0)
                continue;
            const bool border = depth < line;
            const bool inner = depth > innerFrom && depth < innerFrom + line;
            const bool inked = border || inner || (depth > innerFrom && onLattice(x, y));
            row[x] = inked ? ink : paper;
        }
    }
    return picture;
}

} // namespace quillet
