#include "cards/pips.h"

#include "cards/picture_text.h"

#include <array>
#include <cstddef>

namespace quillet
{
namespace
{

QPainterPath clubOutline()
{
    QPainterPath club = readPath("O0 -4.9 4.1 O-4.6 2 4.1 O4.6 2 4.1 O0 -0.2 2.2");
    const QPainterPath stem = readPath("M0 0 L-0.9 2 C-0.9 5.2 -1.6 8 -3.6 9 L0 9");
    // The stem runs round the same way as the circles, or it would cut a hole where they meet.
    club.addPath(completedAcross(stem, 0).toReversed());
    return club;
}

} // namespace

const QPainterPath& pipOutline(int suit)
{
    static const std::array<QPainterPath, 4> outlines = {
        clubOutline(),
        completedAcross(readPath("M0 -9 Q-2.9 -3.9 -6.9 0 Q-2.9 3.9 0 9"), 0),
        completedAcross(readPath("M0 -5 C-0.9 -7.6 -2.6 -9 -4.5 -9 C-6.9 -9 -8.2 -7.1 -8.2 -4.8"
                                 "C-8.2 -0.6 -2.6 3 0 9"),
                        0),
        completedAcross(readPath("M0 -9 C-1.4 -5.2 -8.2 -1.8 -8.2 2.7 C-8.2 5 -6.6 6.5 -4.5 6.5"
                                 "C-2.9 6.3 -1.6 5.4 -0.9 3.9 C-0.8 6.3 -1.6 8.2 -3.4 9 L0 9"),
                        0),
    };
    return outlines[static_cast<std::size_t>(suit)];
}

void paintPip(QPainter& painter, int suit, QPointF centre, double height, QRgb colour)
{
    painter.save();
    painter.translate(centre);
    painter.scale(height / 18, height / 18);
    painter.fillPath(pipOutline(suit), QColor::fromRgba(colour));
    painter.restore();
}

} // namespace quillet
