#pragma once

#include <QPainter>
#include <QPainterPath>
#include <QRgb>

#include <array>
#include <initializer_list>
#include <string_view>
#include <utility>

namespace quillet
{

// The colours of the letters in a picture text. '-' is no colour.
class Palette
{
public:
    Palette(std::initializer_list<std::pair<char, QRgb>> colours);

    // This palette with some letters changed.
    [[nodiscard]] Palette with(std::initializer_list<std::pair<char, QRgb>> colours) const;
    [[nodiscard]] QRgb operator[](char letter) const;

private:
    std::array<QRgb, 128> m_colours{};
};

// The outline that the text describes (see path_text.h), without letter strokes.
[[nodiscard]] QPainterPath readPath(std::string_view text);

// `half` joined with its reflection in the line x = axis. `half` starts and ends on this line.
[[nodiscard]] QPainterPath completedAcross(const QPainterPath& half, double axis);

// Paints a picture that is written as text. Each shape is "fill line width path;" with palette
// letters for fill and line, as in "rk.8 M0 0 L4 0 L2 3 Z;". A ':' in front paints the shape and
// its reflection in the line x = axis. A '|' in front joins the outline with its reflection.
void paintPicture(QPainter& painter, std::string_view text, const Palette& palette,
                  double axis = 0);

} // namespace quillet
