#pragma once

#include <QFont>
#include <QPalette>
#include <QWidget>

namespace quillet
{

// The font in which the controls of the main window were designed.
[[nodiscard]] inline QFont designedFont(int pixels, bool bold)
{
    QFont font("MS Sans Serif");
    font.setStyleHint(QFont::SansSerif);
    font.setPixelSize(pixels);
    font.setBold(bold);
    return font;
}

inline void setColour(QWidget& widget, QPalette::ColorRole role, const QColor& colour)
{
    QPalette colours = widget.palette();
    colours.setColor(role, colour);
    widget.setPalette(colours);
}

} // namespace quillet
