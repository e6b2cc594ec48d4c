#include "assets/make/pictures/pay_plate.h"

#include "assets/make/pictures/alphabet.h"
#include "assets/make/pictures/suits.h"
#include "engine/pay_table.h"

#include <array>
#include <string>
#include <string_view>

namespace quillet::artwork
{

namespace
{

// The names of the hands on the plate.
constexpr std::array<std::string_view, 9> handNames{"ROYAL",       "STRAIGHT FLUSH", "4 OF A KIND",
                                                    "FULL HOUSE",  "FLUSH",          "STRAIGHT",
                                                    "3 OF A KIND", "2 PAIR",         "HIGH PAIR"};

constexpr Lettering lineLettering{10, 0.15, 0.07};
constexpr Lettering titleLettering{8, 0.155, 0.24};

void paintGround(Canvas& canvas, const Ornament& ornament, const QRectF& plate)
{
    const QPainterPath outline = scoopedPath(plate, 9);
    castShadow(canvas, outline, 2.5, 0.55);
    canvas.fill(outline, ornament.ground);
    sink(canvas, outline, 5, 0.8);
    inlay(canvas, between(outline, scoopedPath(plate.adjusted(1.5, 1.5, -1.5, -1.5), 9)),
          ornament.metal);
    const QRectF inner = plate.adjusted(5, 5, -5, -5);
    inlay(canvas,
          between(scoopedPath(inner, 9), scoopedPath(inner.adjusted(0.5, 0.5, -0.5, -0.5), 9)),
          ornament.metal);
}

void paintTitle(Canvas& canvas, const Ornament& ornament, const QRectF& plate)
{
    const double middle = plate.center().x();
    const double baseline = plate.top() + 25;
    inlay(canvas, centredLettering("PAYS FOR FIVE CREDITS", titleLettering, {middle, baseline}),
          ornament.metal);
    QPainterPath rule;
    const double y = baseline + 9;
    const double left = plate.left() + 20;
    const double right = plate.right() - 20;
    rule.addRect(QRectF(left, y - 0.25, middle - 12 - left, 0.75));
    rule.addRect(QRectF(middle + 12, y - 0.25, right - middle - 12, 0.75));
    inlay(canvas, rule, ornament.metal);
    inlay(canvas, suitMark(diamonds, {middle, y}, 7.5), ornament.metal);
}

// Dots from the name of a hand to its credits. All lines use one grid, so their dots form columns,
// each in the middle of a pixel.
void addLeader(QPainterPath& dots, double from, double to, double gridRight, double y)
{
    constexpr double apart = 5;
    constexpr int columns = 50;
    for (int i = 0; i < columns; ++i) {
        const double x = gridRight - apart * i;
        if (x > from + apart && x < to - apart)
            dots.addEllipse(QPointF(x, y), 0.6, 0.6);
    }
}

void paintLines(Canvas& canvas, const Ornament& ornament, const QRectF& plate)
{
    const double left = plate.left() + 20;
    const double right = plate.right() - 20;
    double baseline = plate.top() + 56;
    QPainterPath dots;
    static_assert(payTable.size() == handNames.size());
    for (std::size_t line = 0; line < handNames.size(); ++line) {
        const InlayMaterial& material = line == 0 ? ornament.accent : ornament.metal;
        const QPainterPath hand = letteringPath(handNames[line], lineLettering);
        const QPainterPath credits =
            letteringPath(std::to_string(payTable[line].pays), lineLettering);
        const double handRight = left + hand.boundingRect().right();
        const double creditsLeft = right - credits.boundingRect().width();
        inlay(canvas, hand.translated(left - hand.boundingRect().left(), baseline), material);
        inlay(canvas, credits.translated(creditsLeft - credits.boundingRect().left(), baseline),
              material);
        addLeader(dots, handRight, creditsLeft, right + 0.5, baseline - 1.5);
        baseline += 19;
    }
    Colour dim = ornament.metal.dark;
    dim.a = 0.75F;
    canvas.fill(dots, dim);
}

} // namespace

void paintPayPlate(Canvas& canvas, const Ornament& ornament, const QRectF& plate)
{
    paintGround(canvas, ornament, plate);
    paintTitle(canvas, ornament, plate);
    paintLines(canvas, ornament, plate);
}

} // namespace quillet::artwork
