#include "cards/card_marks.h"

#include "cards/device_pixels.h"

namespace quillet
{

namespace
{

struct HoldMarker {
    HoldMarker(const QRectF& card, double scale)
        : width(deviceSize(3, scale)),
          Shape1(card.adjusted(-width / 2, -width / 2, width / 2, width / 2)),
          Shape2(card.topLeft(), QSizeF(deviceSize(2, scale), card.height())),
          Shape3(Shape2.translated(card.width() - Shape2.width(), 0))
    {
    }

    double width;
    QRectF Shape1; // the outline, around the card
    QRectF Shape2; // inside the card's left edge
    QRectF Shape3; // inside its right edge
};

} // namespace

void paintHoldMarker(QPainter& painter, const QRect& card, double scale, const QColor& colour)
{
    const HoldMarker marker(card, scale);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(colour, marker.width));
    painter.setBrush(Qt::NoBrush);
    const double radius = 6 * scale + marker.width / 2;
    painter.drawRoundedRect(marker.Shape1, radius, radius);
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setClipRect(card, Qt::IntersectClip);
    painter.fillRect(marker.Shape2, colour);
    painter.fillRect(marker.Shape3, colour);
    painter.setClipping(false);
}

void paintFocusFrame(QPainter& painter, const QRect& place)
{
    painter.setPen(QPen(QColor(0x20, 0x20, 0x20), 1, Qt::DotLine));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(place.adjusted(4, 4, -5, -5));
    painter.setPen(QPen(QColor(0xff, 0xff, 0xff), 1, Qt::DotLine));
    painter.drawRect(place.adjusted(5, 5, -6, -6));
}

} // namespace quillet
