#include "cards/index_glyphs.h"

#include "cards/picture_text.h"
#include "shapes/rank_marks.h"

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
        std::ranges::transform(rankMarks(), made.begin(), makeOutline);
        return made;
    }();
    const auto index = static_cast<std::size_t>(rank - 1);
    const RankMark& mark = rankMarks()[index];
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
