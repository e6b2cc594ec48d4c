#include "cards/pips.h"

#include "cards/path_text.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace quillet
{
namespace
{

// Clubs, diamonds, hearts, spades.
constexpr std::array marks{
    "O0 -4.9 4.1 O-4.6 2 4.1 O4.6 2 4.1 O0 -.2 2.2"
    "M0 0 L.9 2 C.9 5.2 1.6 8 3.6 9 L-3.6 9 C-1.6 8 -.9 5.2 -.9 2 Z",
    "M0 -9 Q-2.9 -3.9 -6.9 0 Q-2.9 3.9 0 9 Q2.9 3.9 6.9 0 Q2.9 -3.9 0 -9 Z",
    "M0 -5 C-.9 -7.6 -2.6 -9 -4.5 -9 C-6.9 -9 -8.2 -7.1 -8.2 -4.8 C-8.2 -.6 -2.6 3 0 9"
    "C2.6 3 8.2 -.6 8.2 -4.8 C8.2 -7.1 6.9 -9 4.5 -9 C2.6 -9 .9 -7.6 0 -5 Z",
    "M0 -9 C-1.4 -5.2 -8.2 -1.8 -8.2 2.7 C-8.2 5 -6.6 6.5 -4.5 6.5"
    "C-2.9 6.3 -1.6 5.4 -.9 3.9 C-.8 6.3 -1.6 8.2 -3.4 9 L3.4 9"
    "C1.6 8.2 .8 6.3 .9 3.9 C1.6 5.4 2.9 6.3 4.5 6.5 C6.6 6.5 8.2 5 8.2 2.7"
    "C8.2 -1.8 1.4 -5.2 0 -9 Z"};

} // namespace

const QPainterPath& pipOutline(int suit)
{
    static const auto outlines = [] {
        std::array<QPainterPath, 4> made;
        std::ranges::transform(marks, made.begin(), readPath);
        return made;
    }();
    return outlines[static_cast<std::size_t>(suit)];
}

void paintPip(QPainter& painter, int suit, QPointF centre, double height, QRgb colour)
{
    painter.save();
    painter.translate(centre);
    painter.scale(height / suitMarkHeight, height / suitMarkHeight);
    painter.fillPath(pipOutline(suit), QColor::fromRgba(colour));
    painter.restore();
}

} // namespace quillet
