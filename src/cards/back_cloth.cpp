#include "cards/back_field.h"
#include "cards/card_art.h"

#include <QImage>

#include <array>
#include <cmath>

namespace quillet
{
namespace
{

// A stripe of the tartan, up to `reach` on both sides of the middle of the repeat.
struct Stripe {
    double reach;
    QRgb colour;
};

constexpr double halfRepeat = 14;
constexpr std::array<Stripe, 8> sett = {{
    {0.75, 0xfff3cf5c},
    {4.5, 0xff1f6a48},
    {5.5, 0xff10202c},
    {7, 0xff1f6a48},
    {8, 0xff10202c},
    {12, 0xff23407c},
    {12.75, 0xff10202c},
    {halfRepeat, 0xffd02c35},
}};

QRgb threadAt(double fromMiddle)
{
    const double folded = std::abs(std::remainder(fromMiddle, 2 * halfRepeat));
    for (const Stripe& stripe : sett)
        if (folded <= stripe.reach)
            return stripe.colour;
    return sett.back().colour;
}

QRgb mixed(QRgb first, QRgb second, int firstShare)
{
    const auto channel = [&](int a, int b) {
        return (a * firstShare + b * (16 - firstShare)) / 16;
    };
    return qRgb(channel(qRed(first), qRed(second)), channel(qGreen(first), qGreen(second)),
                channel(qBlue(first), qBlue(second)));
}

// Woven thread by thread: each device pixel shows mostly the upper thread, in the diagonal steps of
// a twill.
QImage tartan(const CardCanvas& canvas, QSize size)
{
    QImage cloth(size, QImage::Format_RGB32);
    const int step = 2 * canvas.lineWidth(1);
    for (int y = 0; y < size.height(); ++y) {
        auto* const row = reinterpret_cast<QRgb*>(cloth.scanLine(y));
        const QRgb weft = threadAt((y + 0.5) / canvas.scaleY() - 65);
        for (int x = 0; x < size.width(); ++x) {
            const QRgb warp = threadAt((x + 0.5) / canvas.scaleX() - 48);
            const bool warpAbove = (x + y) / step % 2 == 0;
            row[x] = mixed(warp, weft, warpAbove ? 11 : 5);
        }
    }
    return cloth;
}

constexpr double pitch = 11;
constexpr double ribbon = 9.6;

// The visible piece of a ribbon, vertical, centred on the origin. Its ends go under the neighbours.
void paintRibbon(QPainter& painter, QRgb colour, QRgb shade)
{
    constexpr double reach = pitch - ribbon / 2;
    constexpr double edge = ribbon / 2;
    const auto bar = [&](double x, double width, QRgb paint) {
        painter.fillRect(QRectF(x, -reach, width, 2 * reach), QColor::fromRgba(paint));
    };
    bar(-edge, ribbon, colour);
    bar(-edge, 1, shade);
    bar(edge - 1, 1, shade);
    bar(-0.6, 1.2, shade);
    for (const double end : {-reach, reach - 1.8})
        painter.fillRect(QRectF(-edge, end, ribbon, 1.8), QColor(30, 0, 10, 90));
}

} // namespace

void paintPlaid(CardCanvas& canvas)
{
    const QImage cloth = tartan(canvas, canvas.image().size());
    paintField(canvas, 0xff10202c, [&](QPainter& painter) {
        painter.resetTransform();
        painter.drawImage(0, 0, cloth);
    });
}

void paintWeave(CardCanvas& canvas)
{
    paintField(canvas, 0xff6e1a2e, [](QPainter& painter) {
        painter.fillRect(0, 0, cardArtWidth, cardArtHeight, QColor(0x3a, 0x14, 0x20));
        painter.translate(48, 65);
        painter.rotate(45);
        constexpr int reach = 8;
        for (int row = -reach; row <= reach; ++row) {
            for (int column = -reach; column <= reach; ++column) {
                // Outside the card.
                if (std::abs(row + column) > 13 || std::abs(row - column) > 10)
                    continue;
                painter.save();
                painter.translate(column * pitch, row * pitch);
                if ((row + column) % 2 == 0) {
                    painter.rotate(90);
                    paintRibbon(painter, 0xfff5e9cd, 0xffcfb583);
                } else {
                    paintRibbon(painter, 0xffb92a43, 0xff85162c);
                }
                painter.restore();
            }
        }
    });
}

} // namespace quillet
