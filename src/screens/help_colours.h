#pragma once

#include <QColor>
#include <QPalette>
#include <QString>

namespace quillet
{

// The desktop's own link colour, or a blue that can be read where it has forgotten that its
// background is dark.
[[nodiscard]] QColor readableLinkColour(const QPalette& palette);

// Dresses the help text, which names no colours itself, for this desktop.
[[nodiscard]] QString helpStyleSheet(const QPalette& palette);

} // namespace quillet
