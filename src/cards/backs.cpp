#include "cards/backs.h"

#include "cards/back_field.h"
#include "cards/card_art.h"
#include "cards/card_drawing.h"
#include "cards/card_numbers.h"

#include <QPainterPath>
#include <QPen>

#include <algorithm>
#include <array>

namespace quillet
{

namespace
{

struct DrawnBack {
    std::int32_t number;
    QRgb frame;
    const char* file;
    const char* colours = ""; // other than in the file
};

constexpr auto drawnBacks = std::to_array<DrawnBack>({
    {robotBack, 0xff6b3410, "robot"},
    {rosesBack, 0xff7a1730, "roses"},
    {ivyBlackBack, 0xff15171b, "ivy"},
    {ivyBlueBack, 0xff0d2550, "ivy", R"(
        .ground { fill: #173f80 }
        .leaf { fill: #7fb069 }
        .light { fill: #a9d08a }
        .edge { stroke: #123a4a }
        .vein-line { stroke: #f3f8d8 }
        .stem-line { stroke: #c9b27a })"},
    {fishCyanBack, 0xff0f6874, "fish"},
    {fishBlueBack, 0xff0a2a60, "fish", R"(
        .ground { fill: #17468f }
        .body { fill: #f2c53d }
        .belly { fill: #fff0b8 }
        .fin { fill: #4fb3d9 }
        .ink { fill: #0a1c40 }
        .edge { stroke: #0a1c40 }
        .scale-line { stroke: #b88416 }
        .bubble-line { stroke: #4a7cc8 })"},
    {shellBack, 0xff0a3338, "shell"},
    {castleBack, 0xff231d38, "castle"},
    {beachBack, 0xff155a80, "beach"},
    {sleeveBack, 0xff4a0a1c, "sleeve"},
});

} // namespace

void paintField(CardCanvas& canvas, QRgb frame, const std::function<void(QPainter&)>& paint)
{
    const double left = canvas.snappedX(fieldLeft);
    const double top = canvas.snappedY(fieldTop);
    const QRectF area(left, top, cardArtWidth - 2 * left, cardArtHeight - 2 * top);
    constexpr double radius = 2.5;

    QPainter painter;
    canvas.begin(painter);
    QPainterPath outline;
    outline.addRoundedRect(area, radius, radius);
    painter.save();
    painter.setClipPath(outline);
    paint(painter);
    painter.restore();

    const double width = canvas.lineWidth(1);
    const double insetX = width / 2 / canvas.scaleX();
    const double insetY = width / 2 / canvas.scaleY();
    QPen pen(QColor::fromRgba(frame), width);
    pen.setCosmetic(true);
    painter.setPen(pen);
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(area.adjusted(insetX, insetY, -insetX, -insetY), radius, radius);
}

void paintBack(CardCanvas& canvas, std::int32_t cardNumber)
{
    if (cardNumber == plaidBack)
        return paintPlaid(canvas);
    if (cardNumber == weaveBack)
        return paintWeave(canvas);
    const auto* const found = std::ranges::find(drawnBacks, cardNumber, &DrawnBack::number);
    if (found == drawnBacks.end())
        return;
    paintField(canvas, found->frame,
               [&](QPainter& painter) { CardDrawing(found->file, found->colours).paint(painter); });
}

} // namespace quillet
