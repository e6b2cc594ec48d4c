#include "cards/back_field.h"
#include "cards/picture_text.h"

#include <QPen>

#include <array>

namespace quillet
{
namespace
{

struct Placed {
    double x;
    double y;
    double angle;
    double size;
};

void paintAt(QPainter& painter, Placed place, std::string_view picture, const Palette& palette)
{
    painter.save();
    painter.translate(place.x, place.y);
    painter.rotate(place.angle);
    painter.scale(place.size, place.size);
    paintPicture(painter, picture, palette);
    painter.restore();
}

// Paints the upper half, then the same rotated by 180 degrees as the lower half.
template <typename Paint>
void paintBothHalves(QPainter& painter, const Paint& paint)
{
    for (int half = 0; half < 2; ++half) {
        paint();
        painter.translate(96, 130);
        painter.rotate(180);
    }
}

constexpr std::string_view rose = R"(
    :gd.6 M2 9 C8 8 15 10 18 15 C12 17 5 15 2 9 Z; :-l.6 M4 10.5 C9 11 13 12.5 16 14.5;
    gd.6 M-3 -8 C-9 -9 -14 -14 -14 -18 C-7 -18 -2 -14 -3 -8 Z;
    -l.6 M-4.5 -10 C-8 -12 -11 -15 -12.5 -17; gd.6 M5 -8 C9 -13 15 -15 19 -13 C17 -8 11 -5 5 -8 Z;
    -l.6 M7 -8.5 C11 -9.5 14 -11 17 -12.5;
    rd.7 M-11 -1 C-14 -7 -9 -12 -4 -10.5 C-1 -14 7 -13 8 -8.5 C13 -8 14 -1 10.5 2 C12 8 6 12.5 1 10
        C-4 13.5 -11 10 -9.5 4.5 C-11.5 3.5 -12 1 -11 -1 Z;
    pd.6 M-8.5 0 C-9.5 -6 -3 -9.5 1 -8 C7 -8.5 10 -3 8.5 1 C8.5 6 4 9 0 8 C-5 9 -8.5 5 -8.5 0 Z;
    rd.6 M-6 0.5 C-6.5 -4 -2 -6.5 1.5 -5.5 C5.5 -5 7 -1 5.5 2 C4.5 5.5 0.5 6.5 -2 5.5
        C-4.5 5 -6 3 -6 0.5 Z;
    pd.6 M-3.6 .5 C-3.6 -2.5 -.5 -4 1.6 -3 C4 -2 4.2 1 2.6 2.6 C1 4.2 -3.4 4 -3.6 .5 Z;
    -d.6 M-1.6 1 C-1.8 -.8 .4 -1.8 1.4 -.6 C2 .4 1 1.8 0 1.4;
    -d.6 M-9.5 4.5 C-8.5 6 -6.5 7.5 -4.5 7.6; -d.6 M10.5 2 C9.5 4 8.5 5.5 6.5 6.6;
)";

constexpr std::string_view bud = R"(
    -s1.1 M0 4 C0 8 1 11 3 14; rd.6 M-4 3 C-5.5 -2 -2 -6 0 -8 C2 -6 5.5 -2 4 3 C2 5 -2 5 -4 3 Z;
    pd.5 M-1.5 3.5 C-3.5 -1 -1 -4.5 0 -6.5 C2.5 -3.5 2.5 1 1 4 Z;
    :gd.5 M0 5.5 C-3 5.5 -5 3 -5.6 -1 C-3.5 1.5 -1.5 2.5 0 3.5 Z;
)";

// An ivy leaf, its stalk at the origin, its tip up.
constexpr std::string_view ivyLeaf = R"(
    -s.8 M0 4 L0 -1;
    |gd.5 M0 -15 C-1.6 -12.5 -2.6 -11 -3.4 -8.6 C-5 -9.6 -6.6 -9.8 -8.4 -9.4
        C-7.8 -7.6 -7.6 -6 -6.4 -4.6 C-7.6 -3.6 -8 -2.2 -8 -.6 C-5.2 .8 -2 1.6 0 -.6;
    h- M0 -15 C1.6 -12.5 2.6 -11 3.4 -8.6 C5 -9.6 6.6 -9.8 8.4 -9.4 C7.8 -7.6 7.6 -6 6.4 -4.6
        C7.6 -3.6 8 -2.2 8 -.6 C5.2 .8 2 1.6 0 -.6 Z;
    -v.6 M0 -.6 L0 -12; :-v.5 M0 -2 L5.6 -7.4; :-v.5 M0 -1.4 L5.8 -1.6;
)";

constexpr std::array<Placed, 13> leaves = {{
    {32, 15, -60, .72},
    {22, 24, -20, .8},
    {44, 22, 40, .95},
    {64, 15, 10, .8},
    {78, 22, 70, .78},
    {30, 38, -75, 1.05},
    {50, 38, 20, 1.1},
    {70, 36, 110, .9},
    {80, 46, 60, .85},
    {19, 48, -110, .8},
    {35, 55, -30, .95},
    {62, 54, 65, 1.1},
    {17, 64, -60, .75},
}};

} // namespace

void paintRoses(CardCanvas& canvas)
{
    const Palette palette{{'r', 0xffc41f3a}, {'p', 0xffe8738a}, {'d', 0xff4a0d1c},
                          {'g', 0xff3f7d4a}, {'l', 0xff1f4a2b}, {'s', 0xff2f6a3c},
                          {'t', 0xffe6d3ab}};
    paintField(canvas, 0xfff8efd9, 0xff7a1730, [&](QPainter& painter) {
        for (double step = -60; step < 200; step += 14) {
            painter.setPen(QPen(QColor::fromRgba(palette['t']), 1.4));
            painter.drawLine(QPointF(0, step), QPointF(96, step + 96));
            painter.drawLine(QPointF(0, step), QPointF(96, step - 96));
        }
        paintBothHalves(painter, [&] {
            paintAt(painter, {48, 12, 180, .9}, bud, palette);
            paintAt(painter, {14, 58, -40, .95}, bud, palette);
            paintAt(painter, {27, 33, 0, 1.05}, rose, palette);
            paintAt(painter, {71, 24, 70, .82}, rose, palette);
            paintAt(painter, {74, 54, 150, .62}, rose, palette);
        });
        paintAt(painter, {48, 65, 35, 1.15}, rose, palette);
    });
}

void paintIvy(CardCanvas& canvas, bool onBlue)
{
    const Palette black{{'g', 0xff3c8a45},
                        {'h', 0xff5fae57},
                        {'v', 0xffcfe8a8},
                        {'d', 0xff123d1f},
                        {'s', 0xff9a7a48}};
    const Palette palette = onBlue ? black.with({{'g', 0xff7fb069},
                                                 {'h', 0xffa9d08a},
                                                 {'v', 0xfff3f8d8},
                                                 {'d', 0xff123a4a},
                                                 {'s', 0xffc9b27a}})
                                   : black;
    const QRgb ground = onBlue ? 0xff173f80 : 0xff15171b;
    paintField(canvas, ground, onBlue ? 0xff0d2550 : 0xff15171b, [&](QPainter& painter) {
        paintBothHalves(painter, [&] {
            paintPicture(painter, R"(
                -s1.7 M48 65 C40 60 36 50 40 40 C44 30 40 20 30 14;
                -s1.3 M40 40 C52 44 64 38 66 28 C67 22 72 18 80 18; -s1.3 M39 46 C30 46 24 52 20 62;
                -s1 M62 36 C70 42 76 44 84 42 M41 34 C34 33 28 31 22 27 M66 28 C66 24 65 20 64 17
                    M47 63.6 C52 61 57 59 61 56 M44 60.4 C41 59.6 38 58 35 56;
                -s.8 M30 14 C22 10 14 12 14 18 C14 22 19 22 19 19 C19 17.4 17 17.4 16.8 18.6;
                -s.8 M80 18 C86 18 87 24 83 25 C80 25.6 79.6 22.6 81.6 22.4;
            )",
                         palette);
            for (const Placed& leaf : leaves)
                paintAt(painter, leaf, ivyLeaf, palette);
        });
    });
}

} // namespace quillet
