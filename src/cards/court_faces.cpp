#include "cards/card_art.h"
#include "cards/card_drawing.h"
#include "cards/faces.h"
#include "cards/pips.h"

#include <array>
#include <cstddef>

namespace quillet
{
namespace
{

constexpr const char* white = "#ffffff";
constexpr const char* black = "#17161b";
constexpr const char* red = "#c8102e";
constexpr const char* gold = "#f0b93a";
constexpr const char* blue = "#23509c";

// The line between the two half figures falls to the right, to leave room for the hand.
constexpr double slope = 0.25;

constexpr std::array figures{"jack", "queen", "king"};
constexpr std::array suits{"clubs", "diamonds", "hearts", "spades"};

struct Colours {
    const char* robe;
    const char* lining;
    const char* pattern;
    const char* hair;
    const char* cap;
    const char* sash; // between golden borders
};

// In the order of the figures and suits.
constexpr std::array<std::array<Colours, 4>, 3> colours = {{
    {{{blue, red, gold, gold, red, red},
      {red, blue, gold, black, red, blue},
      {red, gold, white, gold, red, red},
      {blue, black, gold, black, black, black}}},
    {{{blue, gold, gold, black, blue, blue},
      {red, blue, gold, gold, blue, blue},
      {red, gold, white, gold, red, red},
      {black, red, gold, gold, black, red}}},
    {{{blue, red, gold, black, red, red},
      {red, blue, gold, gold, blue, blue},
      {red, gold, white, gold, red, red},
      {black, blue, gold, white, blue, blue}}},
}};

QByteArray asRules(const Colours& court)
{
    return QString(".robe { fill: %1 } .lining { fill: %2 } .pattern { fill: %3 }"
                   ".pattern-line { stroke: %3 } .hair { fill: %4 } .cap { fill: %5 }"
                   ".sash { fill: %6 }")
        .arg(court.robe, court.lining, court.pattern, court.hair, court.cap, court.sash)
        .toLatin1();
}

// The robe with the pattern of its suit, on a picture of its own, because the SVG renderer cannot
// clip.
QImage clothOf(CardCanvas& canvas, CardDrawing& figure, CardDrawing& details, int suit)
{
    constexpr double pitch = 7;
    const bool staggered = suit == clubs || suit == hearts;
    const double rowHeight = suit == diamonds ? pitch : pitch * 0.72;
    const QString pattern = QString("pattern-") + suits[static_cast<std::size_t>(suit)];

    QImage cloth(canvas.image().size(), canvas.image().format());
    cloth.fill(Qt::transparent);
    QPainter painter(&cloth);
    painter.scale(canvas.scaleX(), canvas.scaleY());
    figure.paint(painter, "robe");
    painter.setCompositionMode(QPainter::CompositionMode_SourceAtop);
    for (int row = 0; row * rowHeight < 40; ++row) {
        const double shift = staggered && row % 2 == 1 ? pitch / 2 : 0;
        for (double x = 15.5 + shift; x < 80; x += pitch) {
            painter.save();
            painter.translate(x, 40 + row * rowHeight);
            details.paint(painter, pattern);
            painter.restore();
        }
    }
    return cloth;
}

void paintFrame(CardCanvas& canvas)
{
    const int line = canvas.lineWidth(1);
    const int left = qRound(canvas.snappedX(courtLeft) * canvas.scaleX());
    const int top = qRound(canvas.snappedY(courtTop) * canvas.scaleY());
    const QSize size(canvas.image().width() - 2 * left, canvas.image().height() - 2 * top);
    QPainter painter;
    canvas.beginInPixels(painter);
    const QColor colour(blue);
    painter.fillRect(left, top, size.width(), line, colour);
    painter.fillRect(left, top + size.height() - line, size.width(), line, colour);
    painter.fillRect(left, top, line, size.height(), colour);
    painter.fillRect(left + size.width() - line, top, line, size.height(), colour);
}

void paintFigure(CardCanvas& canvas, int rank, int suit)
{
    const auto figureIndex = static_cast<std::size_t>(rank - 11);
    const auto suitIndex = static_cast<std::size_t>(suit);
    const QString name = suits[suitIndex];
    const QByteArray rules = asRules(colours[figureIndex][suitIndex]);
    CardDrawing figure(figures[figureIndex], rules);
    CardDrawing details("court", rules);

    QPainter painter;
    canvas.begin(painter);
    painter.setClipRect(QRectF(QPointF(canvas.snappedX(courtLeft), canvas.snappedY(courtTop)),
                               QPointF(cardArtWidth - canvas.snappedX(courtLeft),
                                       cardArtHeight - canvas.snappedY(courtTop))));
    if (rank == 12)
        figure.paint(painter, "behind-" + name);
    painter.save();
    painter.resetTransform();
    painter.drawImage(0, 0, clothOf(canvas, figure, details, suit));
    painter.restore();
    figure.paint(painter, "hem");
    figure.paint(painter, name);
    details.paint(painter, "hand");
    details.paint(painter, "sash");

    // A white rim separates the mark from the hat or veil.
    const QPointF mark(canvas.snappedX(31), canvas.snappedY(18.5));
    paintPip(painter, suit, mark, 17.5, qRgb(255, 255, 255));
    paintPip(painter, suit, mark, 15, suitColour(suit));
}

} // namespace

void paintCourtFace(CardCanvas& canvas, int rank, int suit)
{
    paintIndex(canvas, rank, suit);
    paintFigure(canvas, rank, suit);
    paintFrame(canvas);
    canvas.turnUpperHalf(slope * canvas.scaleY() / canvas.scaleX());
}

} // namespace quillet
