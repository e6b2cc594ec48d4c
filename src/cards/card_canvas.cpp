#include "cards/card_canvas.h"

#include "cards/card_art.h"

#include <algorithm>
#include <cmath>

namespace quillet
{
namespace
{

constexpr QRgb edgeColour = 0xff6f675c;
constexpr double cornerRadius = 6;

} // namespace

CardCanvas::CardCanvas(QSize deviceSize)
    : m_image(deviceSize, QImage::Format_ARGB32_Premultiplied),
      m_scaleX(deviceSize.width() / double(cardArtWidth)),
      m_scaleY(deviceSize.height() / double(cardArtHeight))
{
    m_image.fill(Qt::transparent);
    QPainter painter;
    beginInPixels(painter);
    painter.setPen(Qt::NoPen);
    const QRectF card(QPointF(0, 0), QSizeF(deviceSize));
    const double edge = lineWidth(1);
    const double radius = cornerRadius * m_scaleX;
    painter.setBrush(QColor::fromRgba(edgeColour));
    painter.drawRoundedRect(card, radius, radius);
    painter.setBrush(Qt::white);
    painter.drawRoundedRect(card.adjusted(edge, edge, -edge, -edge), radius - edge, radius - edge);
}

int CardCanvas::lineWidth(double units) const
{
    return std::max(1, static_cast<int>(std::lround(units * std::min(m_scaleX, m_scaleY))));
}

double CardCanvas::snappedX(double x) const
{
    return std::round(x * m_scaleX) / m_scaleX;
}

double CardCanvas::snappedY(double y) const
{
    return std::round(y * m_scaleY) / m_scaleY;
}

void CardCanvas::begin(QPainter& painter)
{
    beginInPixels(painter);
    painter.scale(m_scaleX, m_scaleY);
}

void CardCanvas::beginInPixels(QPainter& painter)
{
    painter.begin(&m_image);
    painter.setRenderHint(QPainter::Antialiasing);
}

void CardCanvas::turnUpperHalf(double slope)
{
    // Rotating a picture by 180 degrees reverses the order of its pixels.
    const int width = m_image.width();
    const int count = width * m_image.height();
    auto* const pixels = reinterpret_cast<QRgb*>(m_image.bits());
    const double middleX = (width - 1) / 2.0;
    const double middleY = (m_image.height() - 1) / 2.0;
    for (int i = 0; i < count / 2; ++i) {
        const int row = i / width;
        const int column = i % width;
        const double below = row - middleY - slope * (column - middleX);
        QRgb& here = pixels[i];
        QRgb& opposite = pixels[count - 1 - i];
        (below <= 0 ? opposite : here) = below <= 0 ? here : opposite;
    }
}

} // namespace quillet
