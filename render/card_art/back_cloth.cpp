#include "render/card_art/back_field.h"

#include <QPainterPath>
#include <QPen>

#include <array>
#include <cmath>

namespace quillet
{
namespace
{

// One stripe of the sett, measured from the middle of its repeat.
struct Stripe {
    double from;
    double width;
    QRgb colour;
};

constexpr double sett = 28;
constexpr std::array<Stripe, 7> stripes = {{
    {-9, 18, 0xff1d2f5c},
    {-1, 2, 0xffe7c25a},
    {-7, 1, 0xff0c1730},
    {6, 1, 0xff0c1730},
    {-14, 3, 0xffb3202c},
    {11, 3, 0xffb3202c},
    {-0.5, 1, 0xfff8e9b8},
}};

// Every stripe lies on whole device pixels: cloth this fine turns to mud otherwise.
void paintStripes(QPainter& painter, const CardCanvas& canvas, bool upright, double opacity)
{
    painter.setOpacity(opacity);
    const double middle = upright ? 48 : 65;
    for (double repeat = middle - 3 * sett; repeat < middle + 3.5 * sett; repeat += sett) {
        for (const Stripe& stripe : stripes) {
            const double from = repeat + stripe.from;
            const double to = from + stripe.width;
            const QRectF bar =
                upright
                    ? QRectF(QPointF(canvas.snappedX(from), 0), QPointF(canvas.snappedX(to), 130))
                    : QRectF(QPointF(0, canvas.snappedY(from)), QPointF(96, canvas.snappedY(to)));
            painter.fillRect(bar, QColor::fromRgba(stripe.colour));
        }
    }
    painter.setOpacity(1);
}

void paintTwill(QPainter& painter)
{
    QPainterPath lines;
    for (double x = -124; x < 96; x += 3) {
        lines.moveTo(x, 126);
        lines.lineTo(x + 122, 4);
    }
    painter.strokePath(lines, QPen(QColor(0, 0, 0, 38), 1));
}

constexpr double pitch = 11;
constexpr double ribbon = 9.4;

void paintRibbon(QPainter& painter, QRectF piece, QRgb colour, QRgb shade, bool upright)
{
    painter.fillRect(piece, QColor::fromRgba(colour));
    const QColor edge = QColor::fromRgba(shade);
    if (upright) {
        painter.fillRect(QRectF(piece.left(), piece.top(), 1, piece.height()), edge);
        painter.fillRect(QRectF(piece.right() - 1, piece.top(), 1, piece.height()), edge);
        painter.fillRect(QRectF(piece.center().x() - 0.5, piece.top(), 1, piece.height()), edge);
    } else {
        painter.fillRect(QRectF(piece.left(), piece.top(), piece.width(), 1), edge);
        painter.fillRect(QRectF(piece.left(), piece.bottom() - 1, piece.width(), 1), edge);
        painter.fillRect(QRectF(piece.left(), piece.center().y() - 0.5, piece.width(), 1), edge);
    }
}

} // namespace

void paintPlaid(CardCanvas& canvas)
{
    paintField(canvas, 0xff1f5a41, 0xff0c1730, [&](QPainter& painter) {
        paintStripes(painter, canvas, true, 1);
        painter.fillRect(QRectF(0, 0, 96, 130), QColor(31, 90, 65, 70));
        paintStripes(painter, canvas, false, 0.55);
        paintTwill(painter);
    });
}

void paintWeave(CardCanvas& canvas)
{
    paintField(canvas, 0xff3a1420, 0xff7b1f33, [](QPainter& painter) {
        painter.translate(48, 65);
        painter.rotate(45);
        constexpr int reach = 8;
        for (int row = -reach; row <= reach; ++row) {
            for (int column = -reach; column <= reach; ++column) {
                const double x = column * pitch - ribbon / 2;
                const double y = row * pitch - ribbon / 2;
                const QRectF across(x - (pitch - ribbon), y, 2 * pitch - ribbon, ribbon);
                const QRectF down(x, y - (pitch - ribbon), ribbon, 2 * pitch - ribbon);
                if ((row + column) % 2 == 0)
                    paintRibbon(painter, across, 0xfff3e6c8, 0xffcdb27f, false);
                else
                    paintRibbon(painter, down, 0xffb3273f, 0xff84152b, true);
            }
        }
    });
}

} // namespace quillet
