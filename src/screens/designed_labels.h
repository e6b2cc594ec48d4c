#pragma once

#include <QFont>
#include <QLabel>

#include <algorithm>

namespace quillet
{

// So many points where the desktop's own font has 9, and more where that is larger.
[[nodiscard]] inline double besideDesktopFont(int points)
{
    return points * std::max(1.0, QFont().pointSizeF() / 9);
}

// The fonts of the designed windows, with what a Linux desktop has in their place.
[[nodiscard]] inline QFont boldComicSans(int points)
{
    QFont font;
    font.setFamilies({"Comic Sans MS", "Comic Neue", "sans-serif"});
    font.setPointSizeF(besideDesktopFont(points));
    font.setBold(true);
    return font;
}

[[nodiscard]] inline QFont smallFonts()
{
    QFont font;
    font.setFamilies({"Small Fonts", "sans-serif"});
    font.setPointSizeF(besideDesktopFont(8));
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
