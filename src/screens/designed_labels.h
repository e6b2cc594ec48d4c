#pragma once

#include <QFont>
#include <QLabel>

#include <algorithm>

namespace quillet
{

// `points` beside a desktop font of up to 9 points, more beside a larger one.
[[nodiscard]] inline double scaledToDesktopFont(int points)
{
    return points * std::max(1.0, QFont().pointSizeF() / 9);
}

// The fonts of the designed windows, and what Linux desktops have instead.
[[nodiscard]] inline QFont boldComicSans(int points)
{
    QFont font;
    font.setFamilies({"Comic Sans MS", "Comic Neue", "sans-serif"});
    font.setPointSizeF(scaledToDesktopFont(points));
    font.setBold(true);
    return font;
}

[[nodiscard]] inline QFont smallFonts()
{
    QFont font;
    font.setFamilies({"Small Fonts", "sans-serif"});
    font.setPointSizeF(scaledToDesktopFont(8));
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
