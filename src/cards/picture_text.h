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

// Reads an outline: absolute commands M x y, L x y, Q (4 numbers), C (6), Z, and two of our own,
// O x y r for a circle and R x y w h for a rectangle. A command letter stands before each
// segment. A fault in the text asserts.
[[nodiscard]] QPainterPath readPath(std::string_view text);

// `half` joined with its reflection in the line x = axis. `half` starts and ends on this line.
[[nodiscard]] QPainterPath completedAcross(const QPainterPath& half, double axis);

// Paints a picture given as text. Each shape is "fill line width path;" with palette letters for
// fill and line, and no blank before the width, as in "rk.8 M0 0 L4 0 L2 3 Z;". Before the fill,
// ':' paints the shape and its reflection in the line x = axis, and '|' completes a half outline.
void paintPicture(QPainter& painter, std::string_view text, const Palette& palette,
                  double axis = 0);

} // namespace quillet
