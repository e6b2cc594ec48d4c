#include "cards/back_field.h"
#include "cards/picture_text.h"

#include <QPen>

namespace quillet
{
namespace
{

// A fish that swims to the right, centred on the origin.
constexpr std::string_view fish = R"(
    fd.6 M-8 0 C-11 -2 -13.5 -6 -16 -6.5 C-15 -3 -14.6 3 -16 6.5 C-13.5 6 -11 2 -8 0 Z;
    fd.6 M-5 -5 C-3 -9 2 -9.5 5 -8.5 C4 -7 4 -6 4.4 -5 Z;
    fd.6 M-2 5 C-3 7 -4 8.6 -6 9 C-5.4 7 -5 6 -5.6 4 Z;
    bd.7 M-10 0 C-6 -6.5 4 -8.5 10.5 -4 C12.6 -2.6 13.6 -1 14 0 C13.6 1 12.6 2.6 10.5 4
        C4 8.5 -6 6.5 -10 0 Z;
    l- M-9 .4 C-4 3.4 6 4.4 13.6 .6 C13 1.6 12.2 2.8 10.4 3.8 C4 8 -5.6 6 -9 .4 Z;
    -d.6 M6 -5.6 C3.8 -2.6 3.8 2.6 6 5.6; -s.6 M2.4 -4.6 C.8 -2.4 .8 2.4 2.4 4.6;
    -s.6 M-1 -4.4 C-2.6 -2.2 -2.6 2.2 -1 4.4; -s.6 M-4.4 -3.4 C-5.6 -1.6 -5.6 1.6 -4.4 3.4;
    fd.5 M3 1.6 C.6 1 -1.6 2.4 -2.4 4.6 C0 5.2 2 4 3 1.6 Z; wd.5 O9.4 -1.4 1.7; d- O9.8 -1.4 .9;
)";

constexpr std::string_view scallop = R"(
    nd.9 M-10 22 L10 22 L7.5 29 L-7.5 29 Z; -d.7 M-4 23 L-3 29; -d.7 M4 23 L3 29; -d.7 M0 23 L0 29;
    |bd1.1 M0 -25 C-3 -27.4 -6.6 -27 -8.4 -24.6 C-11.6 -26.4 -15 -25 -16.2 -22
        C-19.8 -22.6 -22.6 -20.4 -23 -17 C-26.6 -16.4 -28.6 -13.4 -28 -10
        C-31 -8 -31.4 -4 -29.4 -1.4 C-27 8 -16 18 -8 24 C-5 26 -2 26 0 26;
    :l- M-1 24 L-10.5 -22.6 C-12.6 -23.4 -14.4 -22.6 -15 -20.6 Z;
    :l- M-2 24 L-21.6 -16.4 C-23.6 -16 -25 -14.6 -25.4 -12.4 Z;
    :l- M-3 24.4 L-26.6 -8.4 C-28.2 -6.4 -28.4 -4 -27.4 -1.8 Z;
    l- M0 24 L-3 -23.6 C-1.6 -24.4 1.6 -24.4 3 -23.6 Z; :-d.7 M0 25 L-8.4 -24.6;
    :-d.7 M-1 25 L-16.2 -22; :-d.7 M-2 25 L-23 -17; :-d.7 M-3 25 L-28 -10;
)";

// Bands of growth, along the edge of the scallop.
constexpr std::string_view growth = R"(
    :-p1 M0 -25 C-3 -27.4 -6.6 -27 -8.4 -24.6 C-11.6 -26.4 -15 -25 -16.2 -22
        C-19.8 -22.6 -22.6 -20.4 -23 -17 C-26.6 -16.4 -28.6 -13.4 -28 -10
        C-31 -8 -31.4 -4 -29.4 -1.4;
)";

void paintScallop(QPainter& painter, QPointF middle, double size, const Palette& palette)
{
    painter.save();
    painter.translate(middle);
    painter.scale(size, size);
    paintPicture(painter, scallop, palette);
    for (const double share : {0.84, 0.66, 0.46}) {
        painter.save();
        painter.translate(0, 25 * (1 - share));
        painter.scale(share, share);
        paintPicture(painter, growth, palette);
        painter.restore();
    }
    painter.restore();
}

// Rows of overlapping scales, the lower ones in front.
void paintWaves(QPainter& painter, QRgb ground, QRgb line)
{
    painter.setPen(QPen(QColor::fromRgba(line), 1));
    painter.setBrush(QColor::fromRgba(ground));
    for (int row = 0; row < 18; ++row)
        for (int column = -1; column < 7; ++column) {
            const QPointF middle(column * 16 + (row % 2 == 0 ? 0 : 8), 8 + row * 8);
            for (const double radius : {9.0, 6.0, 3.0})
                painter.drawEllipse(middle, radius, radius);
        }
}

} // namespace

void paintFish(CardCanvas& canvas, bool onBlue)
{
    const Palette cyan{{'b', 0xfff08a24}, {'l', 0xffffd9a0}, {'f', 0xffe0551f}, {'s', 0xffb84a14},
                       {'d', 0xff4a2410}, {'w', 0xffffffff}, {'a', 0xffbdeef2}};
    const Palette palette = onBlue ? cyan.with({{'b', 0xfff2c53d},
                                                {'l', 0xfffff0b8},
                                                {'f', 0xff4fb3d9},
                                                {'s', 0xffb88416},
                                                {'d', 0xff0a1c40},
                                                {'a', 0xff4a7cc8}})
                                   : cyan;
    paintField(canvas, onBlue ? 0xff17468f : 0xff43b9c6, onBlue ? 0xff0a2a60 : 0xff0f6874,
               [&](QPainter& painter) {
                   painter.setPen(QPen(QColor::fromRgba(palette['a']), 1));
                   painter.setBrush(Qt::NoBrush);
                   for (int row = 0; row < 7; ++row) {
                       for (int column = -1; column < 3; ++column) {
                           const double x = 27 + column * 42 + (row % 2 == 0 ? 0 : 21);
                           const double y = 14 + row * 17;
                           painter.drawEllipse(QPointF(x + 20, y - 3), 2.2, 2.2);
                           painter.drawEllipse(QPointF(x + 23, y + 2.5), 1.3, 1.3);
                           painter.save();
                           painter.translate(x, y);
                           painter.scale(row % 2 == 0 ? 1 : -1, 1);
                           paintPicture(painter, fish, palette);
                           painter.restore();
                           painter.setPen(QPen(QColor::fromRgba(palette['a']), 1));
                           painter.setBrush(Qt::NoBrush);
                       }
                   }
               });
}

void paintShell(CardCanvas& canvas)
{
    const Palette palette{{'b', 0xfff3a48c}, {'l', 0xfffbd9c4}, {'d', 0xff6b2437},
                          {'n', 0xffe58b76}, {'p', 0xffd9765f}, {'g', 0xffe8c46a},
                          {'w', 0xfffff8ee}, {'t', 0xff2b7f86}};
    const QRgb ground = 0xff12565f;
    paintField(canvas, ground, 0xff0a3338, [&](QPainter& painter) {
        paintWaves(painter, ground, palette['t']);
        for (int corner = 0; corner < 4; ++corner) {
            const double x = corner % 2 == 0 ? 21 : 75;
            const double y = corner < 2 ? 22 : 110;
            paintScallop(painter, {x, y}, corner < 2 ? 0.36 : -0.36,
                         palette.with({{'b', palette['g']},
                                       {'l', palette['w']},
                                       {'n', palette['g']},
                                       {'p', palette['g']}}));
        }
        paintScallop(painter, {48, 64}, 1.14, palette);
    });
}

} // namespace quillet
