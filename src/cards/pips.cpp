#include "cards/pips.h"

#include "cards/picture_text.h"
#include "shapes/suit_marks.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace quillet
{
namespace
{

QPainterPath makeOutline(const SuitMark& mark)
{
    QPainterPath outline = readPath(mark.whole);
    const QPainterPath rest = completedAcross(readPath(mark.half), 0);
    // In the direction of the circles, or their overlap would be a hole.
    outline.addPath(outline.isEmpty() ? rest : rest.toReversed());
    return outline;
}

} // namespace

const QPainterPath& pipOutline(int suit)
{
    static const auto outlines = [] {
        std::array<QPainterPath, 4> made;
        std::ranges::transform(suitMarks, made.begin(), makeOutline);
        return made;
    }();
    return outlines[static_cast<std::size_t>(suit)];
}

void paintPip(QPainter& painter, int suit, QPointF centre, double height, QRgb colour)
{
    painter.save();
    painter.translate(centre);
    painter.scale(height / suitMarkHeight, height / suitMarkHeight);
    painter.fillPath(pipOutline(suit), QColor::fromRgba(colour));
    painter.restore();
}

} // namespace quillet
