#pragma once

#include <QColor>

namespace quillet
{

// From 1 for equal colours to 21 for black and white. Text needs 4.5, large text 3.
[[nodiscard]] double contrast(const QColor& one, const QColor& other);

} // namespace quillet
