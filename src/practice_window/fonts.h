#pragma once

#include <QFont>

namespace quillet::practice_window
{

[[nodiscard]] inline QFont scaled(QFont font, double factor)
{
    font.setPointSizeF(font.pointSizeF() * factor);
    return font;
}

[[nodiscard]] inline QFont headingFont(const QFont& font, double factor)
{
    QFont heading = scaled(font, factor);
    heading.setBold(true);
    return heading;
}

} // namespace quillet::practice_window
