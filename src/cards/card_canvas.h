#pragma once

#include <QImage>
#include <QPainter>
#include <QSize>

namespace quillet
{

// A card picture being made: the white card with its edge to begin with, painted on the grid of
// 96 x 130 units whatever the size of the picture.
class CardCanvas
{
public:
    explicit CardCanvas(QSize deviceSize);

    [[nodiscard]] double scaleX() const { return m_scaleX; }
    [[nodiscard]] double scaleY() const { return m_scaleY; }

    // Device pixels of a line that is `units` wide on the grid, never fewer than one.
    [[nodiscard]] int lineWidth(double units) const;

    // The place on the grid of the device pixel boundary nearest to x or y.
    [[nodiscard]] double snappedX(double x) const;
    [[nodiscard]] double snappedY(double y) const;

    // A painter with antialiasing that works on the grid. End it before using the picture.
    void begin(QPainter& painter);
    // The same in device pixels.
    void beginInPixels(QPainter& painter);

    // Replaces everything below the line through the middle that falls by `slope` (device pixels
    // down for one to the right) by the half above it, turned half round.
    void turnUpperHalf(double slope = 0);

    [[nodiscard]] QImage& image() { return m_image; }

private:
    QImage m_image;
    double m_scaleX;
    double m_scaleY;
};

} // namespace quillet
