#pragma once

#include <QColor>
#include <QPalette>
#include <QString>

namespace quillet
{

// The desktop's link colour, or a readable blue if that has too little contrast.
[[nodiscard]] QColor readableLinkColour(const QPalette& palette);

// The style of the help text in the colours of this desktop.
[[nodiscard]] QString helpStyleSheet(const QPalette& palette);

} // namespace quillet
