#include "screens/help_colours.h"

#include "coach/strategy_chart.h"
#include "platform/colour_contrast.h"
#include "platform/desktop_colours.h"

#include <cmath>

namespace quillet
{

namespace
{

QColor mixed(const QColor& ground, const QColor& ink, double share)
{
    const auto channel = [share](int from, int to) {
        return static_cast<int>(std::lround(from + share * (to - from)));
    };
    return {channel(ground.red(), ink.red()), channel(ground.green(), ink.green()),
            channel(ground.blue(), ink.blue())};
}

// The background that the help gives to words about a colour of the chart.
QString chartColourRule(const QString& name, int row, ChartRowState state)
{
    const ChartRowColours colours = StrategyChart::coloursOf(row, state);
    return '.' + name + " { background-color: " + colourOf(colours.background).name() +
           "; color: " + colourOf(colours.text).name() + "; }";
}

} // namespace

QColor readableLinkColour(const QPalette& palette)
{
    const QColor ground = palette.color(QPalette::Base);
    const QColor link = palette.color(QPalette::Link);
    if (contrast(link, ground) >= 4.5)
        return link;
    const QColor dark(0x0b, 0x4f, 0xb3);
    const QColor light(0x8a, 0xbc, 0xff);
    return contrast(dark, ground) > contrast(light, ground) ? dark : light;
}

QString helpStyleSheet(const QPalette& palette)
{
    const QColor ground = palette.color(QPalette::Base);
    const QColor ink = palette.color(QPalette::Text);
    return QString("a { color: %1; }"
                   "h2 { margin-top: 28px; margin-bottom: 8px; }"
                   "h3 { margin-top: 16px; margin-bottom: 6px; }"
                   "p { margin-top: 8px; margin-bottom: 8px; line-height: 125%; }"
                   "li { margin-top: 2px; margin-bottom: 2px; line-height: 125%; }"
                   "table { border-collapse: collapse; margin-top: 8px; margin-bottom: 8px; }"
                   "td, th { border: 1px solid %2; padding: 4px 8px; }"
                   "th { background-color: %3; text-align: left; }"
                   ".hand { white-space: nowrap; }"
                   ".hand, .hold, code { font-family: monospace; }")
               .arg(readableLinkColour(palette).name(), mixed(ground, ink, 0.35).name(),
                    mixed(ground, ink, 0.08).name()) +
           chartColourRule("best-play", 0, ChartRowState::bestPlay) +
           chartColourRule("missed-play", 0, ChartRowState::missedPlay) +
           chartColourRule("winner", 0, ChartRowState::winner) +
           chartColourRule("straight-flush", 1, ChartRowState::winner);
}

} // namespace quillet
