#include "cards/device_pixels.h"

#include <cmath>

namespace quillet
{

int deviceOrigin(double position, double scale)
{
    return static_cast<int>(std::floor(position * scale + 0.5));
}

int deviceSize(double size, double scale)
{
    return static_cast<int>(std::floor(size * scale + 0.5));
}

QRect deviceRect(const QRectF& logical, double scale)
{
    return {deviceOrigin(logical.x(), scale), deviceOrigin(logical.y(), scale),
            deviceSize(logical.width(), scale), deviceSize(logical.height(), scale)};
}

InDevicePixels::InDevicePixels(QPainter& painter)
    : m_painter(painter), m_toPixels(painter.deviceTransform())
{
    painter.save();
    painter.setWorldTransform(m_toPixels.inverted() * painter.worldTransform());
}

InDevicePixels::~InDevicePixels()
{
    m_painter.restore();
}

} // namespace quillet
