#pragma once

#include <QFont>
#include <QLabel>

namespace quillet
{

// The fonts of the designed windows, with what a Linux desktop has in their place.
[[nodiscard]] inline QFont boldComicSans(int points)
{
    QFont font;
    font.setFamilies({"Comic Sans MS", "Comic Neue", "sans-serif"});
    font.setPointSize(points);
    font.setBold(true);
    return font;
}

[[nodiscard]] inline QFont smallFonts()
{
    QFont font;
    font.setFamilies({"Small Fonts", "sans-serif"});
    font.setPointSize(8);
    return font;
}

template <typename Label = QLabel>
[[nodiscard]] Label* namedLabel(const char* name, const QString& text)
{
    auto* label = new Label(text);
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    return label;
}

} // namespace quillet
