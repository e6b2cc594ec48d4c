#include "platform/desktop_colours.h"

#include <QGuiApplication>
#include <QPalette>

#include <array>

namespace quillet
{

namespace
{

QColor desktopColour(std::uint32_t number)
{
    constexpr std::uint32_t windowText = 8;
    constexpr std::uint32_t greyText = 17;
    static constexpr std::array roles{
        QPalette::Mid,             // scroll bars
        QPalette::Window,          // background of the desktop
        QPalette::Highlight,       // title bar of the active window
        QPalette::Mid,             // title bars of other windows
        QPalette::Window,          // menus
        QPalette::Base,            // background of texts and lists
        QPalette::Shadow,          // frames of windows
        QPalette::WindowText,      // text of menus
        QPalette::WindowText,      // text of windows
        QPalette::HighlightedText, // text of the active title bar
        QPalette::Highlight,       // border of the active window
        QPalette::Mid,             // borders of other windows
        QPalette::Dark,            // background of windows in a window
        QPalette::Highlight,       // selected text, background
        QPalette::HighlightedText, // its text
        QPalette::Button,          // buttons
        QPalette::Dark,            // shadow of buttons
        QPalette::WindowText,      // disabled text
        QPalette::ButtonText,      // text of buttons
        QPalette::WindowText,      // text of other title bars
        QPalette::Light,           // lit edges
        QPalette::Shadow,          // dark edges
        QPalette::Midlight,        // faint edges
        QPalette::ToolTipText,     // text of tool tips
        QPalette::ToolTipBase,     // background of tool tips
    };
    const auto group = number == greyText ? QPalette::Disabled : QPalette::Active;
    return QGuiApplication::palette().color(group,
                                            roles[number < roles.size() ? number : windowText]);
}

} // namespace

QColor colourOf(std::uint32_t bgr)
{
    constexpr std::uint32_t namesDesktopColour = 0x80000000;
    if ((bgr & namesDesktopColour) != 0)
        return desktopColour(bgr & ~namesDesktopColour);
    return {static_cast<int>(bgr & 0xff), static_cast<int>((bgr >> 8) & 0xff),
            static_cast<int>((bgr >> 16) & 0xff)};
}

std::uint32_t bgrOf(const QColor& colour)
{
    return static_cast<std::uint32_t>(colour.red()) |
           static_cast<std::uint32_t>(colour.green()) << 8 |
           static_cast<std::uint32_t>(colour.blue()) << 16;
}

} // namespace quillet
