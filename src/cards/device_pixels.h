#pragma once

#include <QRect>
#include <QRectF>

namespace quillet
{

// The only place that rounds logical to device pixels. Position and size are rounded separately, so
// that equal cards have the same size everywhere.
[[nodiscard]] int deviceOrigin(double position, double scale);
[[nodiscard]] int deviceSize(double size, double scale);
[[nodiscard]] QRect deviceRect(const QRectF& logical, double scale);

} // namespace quillet
