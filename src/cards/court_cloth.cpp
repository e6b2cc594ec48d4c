#include "cards/card_numbers.h"
#include "cards/court.h"

#include <QPen>

#include <array>
#include <cstddef>

namespace quillet
{
namespace
{

constexpr double pitch = 7;

// One repeat of the cloth's pattern for each suit, centred on the origin.
constexpr std::array<std::string_view, 4> repeats = {
    "P- O0 -1.5 1.15 O-1.4 .7 1.15 O1.4 .7 1.15; -P.6 M0 0 L0 3;",
    "-P.8 M0 -3.5 L3.5 0 L0 3.5 L-3.5 0 Z; P- O0 0 1;",
    "-P.9 M-3.5 -1.8 C-3.5 2.6 3.5 2.6 3.5 -1.8; P- O0 -1 .8;",
    "-P1 M-3.5 2.2 L0 -1.6 L3.5 2.2; P- O0 2.2 .7;",
};

} // namespace

void paintCloth(QPainter& painter, std::string_view outline, int suit, const Palette& palette)
{
    const QPainterPath area = readPath(outline);
    painter.fillPath(area, QColor::fromRgba(palette['R']));
    painter.save();
    painter.setClipPath(area, Qt::IntersectClip);
    const QRectF bounds = area.boundingRect();
    const bool staggered = suit == clubs || suit == hearts;
    const double rowHeight = suit == diamonds ? pitch : pitch * 0.72;
    for (int row = 0; 40 + row * rowHeight < bounds.bottom() + pitch; ++row) {
        const double shift = staggered && row % 2 == 1 ? pitch / 2 : 0;
        for (double x = 15.5 + shift; x < bounds.right() + pitch; x += pitch) {
            if (x < bounds.left() - pitch)
                continue;
            painter.save();
            painter.translate(x, 40 + row * rowHeight);
            paintPicture(painter, repeats[static_cast<std::size_t>(suit)], palette);
            painter.restore();
        }
    }
    painter.restore();
    painter.strokePath(area, QPen(QColor::fromRgba(palette['k']), 0.9));
}

void paintHand(QPainter& painter, const Palette& palette)
{
    paintPicture(painter, R"(
        Lk.8 M60 66 L62 57 L72.5 57 L76 66 L76 74 L58 74 Z;
        wk.8 M61 54 C64 52.6 70 52.6 73 54 L73.4 58 C70 56.8 64 56.8 60.8 58 Z;
        sk.8 M62.4 48.4 C62.4 46.2 63.6 45.2 65.4 45.2 L70 45.2 C71.4 45.2 72 46 71.8 47
            C72.6 47.4 72.6 48.8 72 49.2 C72.6 49.8 72.4 51 71.8 51.4 C72 52.6 71.6 53.8 70.4 54
            L64.4 54.2 C62.8 53 62.4 51 62.4 48.4 Z;
        -k.6 M66.6 47.2 L71.6 47.2; -k.6 M66.8 49.4 L71.8 49.4; -k.6 M66.8 51.6 L71.6 51.6;
    )",
                 palette);
}

} // namespace quillet
