#include "cards/path_text.h"

#include <array>
#include <cassert>
#include <cstddef>
#include <span>
#include <sstream>

namespace quillet
{
namespace
{

std::size_t numberCount(char letter)
{
    switch (letter) {
    case 'Z':
        return 0;
    case 'O':
        return 3;
    case 'Q':
    case 'R':
        return 4;
    case 'C':
        return 6;
    default:
        assert(letter == 'M' || letter == 'L');
        return 2;
    }
}

} // namespace

QPainterPath readPath(const char* text)
{
    QPainterPath path;
    path.setFillRule(Qt::WindingFill);
    std::istringstream in(text);
    for (char letter = 0; in >> letter;) {
        std::array<double, 6> numbers{};
        for (double& number : std::span(numbers).first(numberCount(letter)))
            in >> number;
        assert(in);
        const auto& [x1, y1, x2, y2, x3, y3] = numbers;
        if (letter == 'M')
            path.moveTo(x1, y1);
        else if (letter == 'L')
            path.lineTo(x1, y1);
        else if (letter == 'Q')
            path.quadTo(x1, y1, x2, y2);
        else if (letter == 'C')
            path.cubicTo(x1, y1, x2, y2, x3, y3);
        else if (letter == 'O')
            path.addEllipse(QPointF(x1, y1), x2, x2);
        else if (letter == 'R')
            path.addRect(x1, y1, x2, y2);
        else
            path.closeSubpath();
    }
    return path;
}

} // namespace quillet
