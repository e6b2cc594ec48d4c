#include "cards/index_glyphs.h"

#include "cards/path_text.h"

#include <QPainterPathStroker>
#include <QTransform>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <vector>

namespace quillet
{
namespace
{

struct PenStroke {
    double width;
    const char* path;
};

// A rank, rankMarkHeight high, as filled pieces and pen strokes. The guides are the edges of its
// stems and bars, ascending.
struct RankMark {
    double width;
    const char* pieces;
    std::vector<PenStroke> strokes;
    std::vector<double> guidesX;
    std::vector<double> guidesY;
    bool turned = false; // by 180 degrees: the nine is the six
};

const char* const sixBowl = "M10.4 5.2 C9.8 2.9 8.6 1.6 6.9 1.6 C3.6 1.6 1.8 5.6 1.8 12"
                            "C1.8 17.6 3.6 20.4 6.5 20.4 C9.5 20.4 11.2 18 11.2 14.8"
                            "C11.2 11.6 9.5 9.3 6.7 9.3 C4.4 9.3 2.6 10.9 2 13.6";

// Ace to king.
const std::array<RankMark, 13> marks = {{
    {13.6,
     "M5 0 L8.4 0 L13.4 22 L9.6 22 Z M5.2 0 L8 0 L3.3 22 L.3 22 Z"
     "R3.2 12.4 7 2.6",
     {},
     {.3, 13.4},
     {0, 12.4, 15, 22}},
    {12.4,
     "R.6 18.9 11.4 3.1",
     {{3.2, "M2 6.8 C2 3.5 3.8 1.6 6.3 1.6 C8.9 1.6 10.6 3.5 10.6 6.2 C10.6 10.4 6 13.2 2.4 20"}},
     {.4, 3.6, 9, 12.2},
     {0, 3.2, 18.9, 22}},
    {12.8,
     "",
     {{3.2, "M1.9 5.6 C2.3 3 3.9 1.6 6.2 1.6 C8.8 1.6 10.4 3.3 10.4 5.8 C10.4 8.5 8.4 10.2 5 10.2"},
      {3.2, "M5 10.2 C9 10.2 11.2 12.1 11.2 15.1 C11.2 18.4 9.1 20.4 6.2 20.4"
            "C3.6 20.4 1.9 18.9 1.6 16.3"}},
     {0, 9.6, 12.8},
     {0, 3.2, 8.6, 11.8, 18.8, 22}},
    {13.2,
     "M7.2 0 L10.8 0 L3.9 15 L.2 15 Z R.2 13.4 13 2.8 R7.4 0 3.4 22",
     {},
     {0, 7.4, 10.8, 13.2},
     {0, 13.4, 16.2, 22}},
    {12.8,
     "R2.2 0 9.4 3.1 M2.2 0 L5 0 L4.8 10.6 L1.8 11.2 Z",
     {{3.2, "M3.2 10.8 C4.1 9.3 5.2 8.7 6.5 8.7 C9.5 8.7 11.2 11.1 11.2 14.4"
            "C11.2 18.1 9.2 20.4 6.2 20.4 C3.7 20.4 2 18.9 1.6 16.3"}},
     {0, 2.2, 5, 9.6, 12.8},
     {0, 3.1, 7.1, 10.3, 18.8, 22}},
    {13, "", {{3.2, sixBowl}}, {.2, 3.4, 9.6, 12.8}, {0, 3.2, 7.7, 10.9, 18.8, 22}},
    {12.2,
     "R.4 0 11.6 3.1 M8.8 2 L12 2 L12 3.1 C9.4 8 8 14.5 7.6 22 L3.9 22"
     "C4.2 14.5 5.8 8.2 8.8 3 Z",
     {},
     {.4, 3, 12},
     {0, 3.1, 22}},
    {13.2,
     "",
     {{3.1, "M6.6 1.55 C9 1.55 10.6 3.3 10.6 5.9 C10.6 8.5 9 10.2 6.6 10.2"
            "C4.2 10.2 2.6 8.5 2.6 5.9 C2.6 3.3 4.2 1.55 6.6 1.55 Z"},
      {3.1, "M6.6 10.2 C9.6 10.2 11.6 12.3 11.6 15.3 C11.6 18.4 9.6 20.45 6.6 20.45"
            "C3.6 20.45 1.6 18.4 1.6 15.3 C1.6 12.3 3.6 10.2 6.6 10.2 Z"}},
     {0, 3.1, 10.1, 13.2},
     {0, 3.1, 8.65, 11.75, 18.9, 22}},
    {13, "", {{3.2, sixBowl}}, {.2, 3.4, 9.6, 12.8}, {0, 3.2, 11.1, 14.3, 18.8, 22}, true},
    {14.6,
     "R2 0 3.2 22 M2 0 L3.4 0 L2.6 4.6 L0 5.4 L0 3.2 Z",
     {{2.9, "M10.55 1.45 C12.5 1.45 13.15 4 13.15 11 C13.15 18 12.5 20.55 10.55 20.55"
            "C8.6 20.55 7.95 18 7.95 11 C7.95 4 8.6 1.45 10.55 1.45 Z"}},
     {0, 2, 5.2, 6.5, 9.4, 11.7, 14.6},
     {0, 3, 19, 22}},
    {9.8,
     "",
     {{3.6, "M8 0 L8 15.4 C8 18.6 6.8 20.2 4.8 20.2 C2.9 20.2 1.8 19 1.8 16.8 L1.8 14.8"}},
     {0, 3.6, 6.2, 9.8},
     {0, 18.4, 22}},
    {13.6,
     "",
     {{3.3, "M6.4 1.65 C9.4 1.65 11 5 11 11 C11 17 9.4 20.35 6.4 20.35"
            "C3.4 20.35 1.8 17 1.8 11 C1.8 5 3.4 1.65 6.4 1.65 Z"},
      {3, "M6.2 14.2 C8.4 14.6 9.4 20.2 13.2 20.2"}},
     {.15, 3.45, 9.35, 12.65},
     {0, 3.3, 18.7, 22}},
    {14,
     "R.6 0 3.6 22 M9.2 0 L13 0 L4.2 14.4 L4.2 9.2 Z M5.6 11 L8.2 7.2 L13.6 22 L9.6 22 Z",
     {},
     {.6, 4.2, 13.6},
     {0, 22}},
}};

QPainterPath makeOutline(const RankMark& mark)
{
    QPainterPath outline = readPath(mark.pieces);
    for (const PenStroke& stroke : mark.strokes) {
        QPainterPathStroker pen;
        pen.setWidth(stroke.width);
        pen.setCapStyle(Qt::FlatCap);
        pen.setJoinStyle(Qt::RoundJoin);
        outline.addPath(pen.createStroke(readPath(stroke.path)));
    }
    outline.setFillRule(Qt::WindingFill);
    if (!mark.turned)
        return outline;
    return QTransform(-1, 0, 0, -1, mark.width, rankMarkHeight).map(outline);
}

// Moves a coordinate so that every guide is on a whole device pixel. Between two guides it moves
// in proportion.
double fitted(double value, const std::vector<double>& guides, double scale, double origin)
{
    const auto onPixel = [&](double guide) { return std::round(guide * scale + origin); };
    if (value <= guides.front())
        return onPixel(guides.front()) + (value - guides.front()) * scale;
    for (std::size_t i = 1; i < guides.size(); ++i) {
        if (value <= guides[i]) {
            const double low = onPixel(guides[i - 1]);
            const double share = (value - guides[i - 1]) / (guides[i] - guides[i - 1]);
            return low + share * (onPixel(guides[i]) - low);
        }
    }
    return onPixel(guides.back()) + (value - guides.back()) * scale;
}

} // namespace

QPainterPath rankOutline(int rank, double centre, double top, double scaleX, double scaleY)
{
    static const auto outlines = [] {
        std::array<QPainterPath, 13> made;
        std::ranges::transform(marks, made.begin(), makeOutline);
        return made;
    }();
    const auto index = static_cast<std::size_t>(rank - 1);
    const RankMark& mark = marks[index];
    const double left = (centre - mark.width / 2) * scaleX;
    QPainterPath outline = outlines[index];
    for (int i = 0; i < outline.elementCount(); ++i) {
        const QPainterPath::Element at = outline.elementAt(i);
        outline.setElementPositionAt(i, fitted(at.x, mark.guidesX, scaleX, left),
                                     fitted(at.y, mark.guidesY, scaleY, top * scaleY));
    }
    return outline;
}

} // namespace quillet
