#include "cards/card_art.h"
#include "cards/court.h"
#include "cards/faces.h"
#include "cards/pips.h"

#include <array>
#include <cstddef>

namespace quillet
{
namespace
{

constexpr QRgb white = 0xffffffff;
constexpr QRgb black = cardBlack;
constexpr QRgb red = cardRed;
constexpr QRgb gold = 0xfff0b93a;
constexpr QRgb blue = 0xff23509c;
constexpr QRgb skin = 0xfffadfc4;

// The line between the two half figures falls to the right, to leave room for the hand.
constexpr double slope = 0.25;

struct Roles {
    QRgb robe;
    QRgb lining;
    QRgb pattern;
    QRgb hair;
    QRgb cap;
};

// Jacks, queens, kings; clubs, diamonds, hearts, spades.
constexpr std::array<std::array<Roles, 4>, 3> rolesOf = {{
    {{{blue, red, gold, gold, red},
      {red, blue, gold, black, red},
      {red, gold, white, gold, red},
      {blue, black, gold, black, black}}},
    {{{blue, gold, gold, black, blue},
      {red, blue, gold, gold, blue},
      {red, gold, white, gold, red},
      {black, red, gold, gold, black}}},
    {{{blue, red, gold, black, red},
      {red, blue, gold, gold, blue},
      {red, gold, white, gold, red},
      {black, blue, gold, white, blue}}},
}};

void paintSash(QPainter& painter, const Palette& palette)
{
    painter.save();
    painter.translate(48, 65);
    painter.shear(0, slope);
    paintPicture(painter,
                 "k- R-28 -4.2 56 8.4; g- R-28 -3.2 56 6.4; k- R-28 -2 56 4; S- R-28 -1.4 56 2.8;",
                 palette);
    for (double x = -24; x <= 24; x += 6) {
        painter.save();
        painter.translate(x, 0);
        paintPicture(painter, "w- M0 -1.4 L2 0 L0 1.4 L-2 0 Z;", palette);
        painter.restore();
    }
    painter.restore();
}

void paintFrame(CardCanvas& canvas)
{
    const int line = canvas.lineWidth(1);
    const int left = qRound(canvas.snappedX(courtLeft) * canvas.scaleX());
    const int top = qRound(canvas.snappedY(courtTop) * canvas.scaleY());
    const QSize size(canvas.image().width() - 2 * left, canvas.image().height() - 2 * top);
    QPainter painter;
    canvas.beginInPixels(painter);
    const QColor colour = QColor::fromRgba(blue);
    painter.fillRect(left, top, size.width(), line, colour);
    painter.fillRect(left, top + size.height() - line, size.width(), line, colour);
    painter.fillRect(left, top, line, size.height(), colour);
    painter.fillRect(left + size.width() - line, top, line, size.height(), colour);
}

void paintFigure(CardCanvas& canvas, int rank, int suit)
{
    const Palette palette = courtPalette(rank, suit);
    QPainter painter;
    canvas.begin(painter);
    painter.setClipRect(QRectF(QPointF(canvas.snappedX(courtLeft), canvas.snappedY(courtTop)),
                               QPointF(cardArtWidth - canvas.snappedX(courtLeft),
                                       cardArtHeight - canvas.snappedY(courtTop))));
    constexpr std::array painters = {&paintJack, &paintQueen, &paintKing};
    painters[static_cast<std::size_t>(rank - 11)](painter, suit, palette);
    paintSash(painter, palette);

    // A white rim separates the mark from the hat or veil.
    const QPointF mark(canvas.snappedX(31), canvas.snappedY(18.5));
    paintPip(painter, suit, mark, 17.5, white);
    paintPip(painter, suit, mark, 15, suitColour(suit));
}

} // namespace

Palette courtPalette(int rank, int suit)
{
    const Roles& roles =
        rolesOf[static_cast<std::size_t>(rank - 11)][static_cast<std::size_t>(suit)];
    return {{'w', white},         {'k', black},
            {'r', red},           {'g', gold},
            {'b', blue},          {'s', skin},
            {'R', roles.robe},    {'L', roles.lining},
            {'P', roles.pattern}, {'H', roles.hair},
            {'C', roles.cap},     {'S', roles.lining == gold ? roles.robe : roles.lining}};
}

void paintCourtFace(CardCanvas& canvas, int rank, int suit)
{
    paintIndex(canvas, rank, suit);
    paintFigure(canvas, rank, suit);
    paintFrame(canvas);
    canvas.turnUpperHalf(slope * canvas.scaleY() / canvas.scaleX());
}

} // namespace quillet
