#include "render/card_art/back_field.h"
#include "render/card_art/picture_text.h"
#include "render/card_art/pips.h"

namespace quillet
{
namespace
{

// A card of the fan, its lower middle at the origin.
void paintFanCard(QPainter& painter, double angle, int suit)
{
    painter.save();
    painter.rotate(angle);
    const Palette palette{{'w', 0xffffffff}, {'d', 0xff2a2230}};
    paintPicture(painter, R"(
        wd.8 M-15 -64 C-15 -66 -14 -67 -12 -67 L12 -67 C14 -67 15 -66 15 -64 L15 -20 L-15 -20 Z;
    )",
                 palette);
    const QRgb colour = suitColour(suit);
    const Palette ink{{'i', colour}};
    paintPicture(painter, "-i1.4 M-12.4 -56.4 L-10 -63.6 L-7.6 -56.4; -i1 M-11.4 -59 L-8.6 -59;",
                 ink);
    paintPip(painter, suit, {-10, -51}, 6, colour);
    paintPip(painter, suit, {2, -46}, 18, colour);
    painter.restore();
}

} // namespace

void paintSleeve(CardCanvas& canvas)
{
    const Palette palette{{'n', 0xff1e2a4a}, {'m', 0xff2c3d69}, {'d', 0xff10162a},
                          {'w', 0xfffbfaf4}, {'v', 0xffd6d8e4}, {'g', 0xffe2b64a},
                          {'h', 0xfff8e6a6}, {'k', 0xff7a5a16}, {'r', 0xff7d1430},
                          {'q', 0xff9c2343}};
    paintField(canvas, palette['r'], 0xff4a0a1c, [&](QPainter& painter) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(QColor::fromRgba(palette['q']));
        for (int row = 0; row < 13; ++row)
            for (int column = 0; column < 9; ++column) {
                painter.save();
                painter.translate(column * 12 + (row % 2 == 0 ? 0 : 6), 5 + row * 10);
                painter.scale(.34, .34);
                painter.drawPath(pipOutline(Diamonds));
                painter.restore();
            }
        painter.translate(48, 84);
        painter.rotate(8);
        painter.save();
        painter.translate(0, 14);
        paintFanCard(painter, -40, Clubs);
        paintFanCard(painter, -14, Diamonds);
        paintFanCard(painter, 12, Hearts);
        paintFanCard(painter, 38, Spades);
        painter.restore();
        paintPicture(painter, R"(
            wd.9 M-25 6 C-14 -1 14 -1 25 6 L26 17 L-26 17 Z; v- M-25 12 C-14 7 14 7 25.4 12 L26 17 L-26 17 Z;
            nd1 M-31 14 C-16 6 16 6 31 14 L33 32 L38 64 L-38 64 L-33 32 Z;
            md.9 M-31 14 C-16 6 16 6 31 14 L33 33 C16 25 -16 25 -33 33 Z;
            -g1.8 M-31.6 19 C-16 11.4 16 11.4 31.6 19; -g1 M-32 22.4 C-16 14.8 16 14.8 32 22.4; -g1 M-32.6 30 C-16 22 16 22 32.6 30;
            -d.8 M6 27.4 C5 40 5 54 6 64; gk.7 O12 34 3; gk.7 O12 43 3; gk.7 O12 52 3; h- O11.2 33.2 1 O11.2 42.2 1 O11.2 51.2 1;
            -m1 M-22 31 C-24 42 -25 52 -25 64; -m1 M-8 29 C-9 40 -9 52 -9 64;
        )",
                     palette);
    });
}

} // namespace quillet
