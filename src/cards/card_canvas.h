#pragma once

#include <QImage>
#include <QPainter>
#include <QSize>

namespace quillet
{

// A card picture in the making. It starts as a white card with its edge, and is painted on a grid
// of 96 x 130 units, whatever the size of the picture.
class CardCanvas
{
public:
    explicit CardCanvas(QSize deviceSize);

    [[nodiscard]] double scaleX() const { return m_scaleX; }
    [[nodiscard]] double scaleY() const { return m_scaleY; }

    // The width in device pixels of a line that is `units` wide on the grid, at least 1.
    [[nodiscard]] int lineWidth(double units) const;

    // The device pixel boundary nearest to x or y, in grid units.
    [[nodiscard]] double snappedX(double x) const;
    [[nodiscard]] double snappedY(double y) const;

    // Starts an antialiasing painter on the grid. End it before using the picture.
    void begin(QPainter& painter);
    // The same in device pixels.
    void beginInPixels(QPainter& painter);

    // Replaces the half below a line through the centre by the half above it, rotated by 180
    // degrees. `slope` is how many device pixels the line falls for each pixel to the right.
    void turnUpperHalf(double slope = 0);

    [[nodiscard]] QImage& image() { return m_image; }

private:
    QImage m_image;
    double m_scaleX;
    double m_scaleY;
};

} // namespace quillet
