#include "cards/back_field.h"
#include "cards/picture_text.h"
#include "cards/pips.h"

#include <array>

namespace quillet
{
namespace
{

// The aces of the fan, lowest first.
constexpr std::array<int, 4> fan = {clubs, diamonds, spades, hearts};
constexpr double firstAngle = -38;
constexpr double angleStep = 22;

// The arm of the coat with its cuff and the shirt's. The wrist is at the origin, the arm below it.
constexpr std::string_view arm = R"(
    nd1 M-17 12 C-6 7 6 7 17 12 L20 34 C24 46 26 60 28 90 L-32 90 C-28 62 -24 46 -20 34 Z;
    m- M-17 14 L-20 34 C-24 46 -27 60 -30 90 L-23 90 C-19 62 -15 46 -12 34 L-11 12 Z;
    -d.9 M-8 34 C-10 46 -13 62 -14 90 M6 34 C7 46 8 62 8 90;
    wd.9 M-14 2 C-5 -1.4 5 -1.4 14 2 L15.4 13 C6 9 -6 9 -15.4 13 Z;
    v- M-14.8 8.6 C-6 5 6 5 14.9 8.6 L15.4 13 C6 9 -6 9 -15.4 13 Z; gd.6 O8.6 5.6 1.7;
    md1 M-18 11 C-6 6 6 6 18 11 L20.8 34 C8 28.6 -8 28.6 -20.8 34 Z;
    -g1.7 M-18.7 17 C-6 12 6 12 18.7 17 M-19.2 20.6 C-6 15.6 6 15.6 19.2 20.6;
    -g1.1 M-20.2 29.4 C-8 24.2 8 24.2 20.2 29.4; gd.7 O13 39 2.5 O14.4 46.6 2.5;
    h- O12.4 38.2 .9 O13.8 45.8 .9;
)";

// The palm, and the fingers in front of the fan.
constexpr std::string_view fist = R"(
    sd.9 M-12.6 3 C-15 -3 -16 -9 -13.4 -14 C-10 -18.4 4 -20 10 -17.6 C13.6 -17.6 15.4 -15 14.6 -12.4
        C16.8 -11 17 -8 15.4 -6.4 C16.4 -4.4 16 -2 14.4 -.8 C14.8 1 14 2.6 12.8 3.4
        C5 1 -5 1 -12.6 3 Z;
    t- M-12.6 3 C-13.6 0 -14.6 -3 -14.9 -6 C-10 -1 0 -3 4.4 -7 C5.4 -3 6 0 12.8 3.4
        C5 1 -5 1 -12.6 3 Z;
    -d.7 M14.4 -12.3 C11 -13.4 7.4 -12.8 5 -11; -d.7 M15.3 -6.4 C12 -7.4 8.4 -7.2 6 -5.8;
    -d.7 M14.3 -.8 C11.6 -1.8 9 -2 7 -1.2;
    sd.9 M-13.2 -8 C-13 -16 -9 -21.6 -4.4 -27.4 C-2.4 -30 1.4 -28.6 1.2 -25
        C.8 -20.4 -1 -17 -1.4 -13 C-2 -8 -6 -4.6 -10 -4.6;
    wd.5 M-2.8 -26.8 C-1.4 -28.4 .4 -27.4 .3 -25.2 C0 -23.6 -1 -22.6 -1.8 -22.4
        C-2.8 -23.4 -3.2 -25.2 -2.8 -26.8 Z;
)";

void paintFanCard(QPainter& painter, int suit)
{
    const QRgb colour = suitColour(suit);
    paintPicture(painter, R"(
        wd.9 M-14 -58 C-14 -60 -13 -61 -11 -61 L11 -61 C13 -61 14 -60 14 -58 L14 -14
            C14 -12 13 -11 11 -11 L-11 -11 C-13 -11 -14 -12 -14 -14 Z;
        -i1.5 M-11.6 -49.6 L-9 -57.4 L-6.4 -49.6 M-10.6 -52.2 L-7.4 -52.2;
    )",
                 {{'w', 0xffffffff}, {'d', 0xff2a2230}, {'i', colour}});
    paintPip(painter, suit, {-9, -44.4}, 6.6, colour);
    paintPip(painter, suit, {2.6, -42}, 17, colour);
}

void paintDamask(QPainter& painter, QRgb colour)
{
    for (int row = 0; row < 13; ++row)
        for (int column = 0; column < 9; ++column)
            paintPip(painter, diamonds, {column * 12.0 + (row % 2 == 0 ? 0 : 6), 5 + row * 10.0},
                     6.5, colour);
}

} // namespace

void paintSleeve(CardCanvas& canvas)
{
    const Palette palette{{'n', 0xff22315a}, {'m', 0xff30447a}, {'d', 0xff141428},
                          {'w', 0xfffbfaf4}, {'v', 0xffcfd3e4}, {'g', 0xffe9bd4e},
                          {'h', 0xfffff0bc}, {'r', 0xff7d1430}, {'q', 0xff982242},
                          {'s', 0xfff6cfae}, {'t', 0xffe3ab86}};
    paintField(canvas, palette['r'], 0xff4a0a1c, [&](QPainter& painter) {
        paintDamask(painter, palette['q']);
        painter.translate(49, 82);
        painter.save();
        painter.translate(0, -4);
        painter.scale(0.92, 0.92);
        painter.rotate(firstAngle + 4);
        for (const int suit : fan) {
            paintFanCard(painter, suit);
            painter.rotate(angleStep);
        }
        painter.restore();
        painter.rotate(16);
        paintPicture(painter, arm, palette);
        paintPicture(painter, fist, palette);
    });
}

} // namespace quillet
