#include "main_window/indicator_style.h"

#include "platform/colour_contrast.h"

#include <QPainter>
#include <QStyleOption>

namespace quillet
{

namespace
{

bool isDark(const QStyleOption& option)
{
    constexpr double tooDark = 2;
    return contrast(option.palette.color(QPalette::Window), Qt::black) < tooDark;
}

void paintFrame(QPainter& painter, const QStyleOption& option, const QRect& frame, bool round)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, round);
    painter.setPen(option.palette.color(QPalette::WindowText));
    painter.setBrush(Qt::NoBrush);
    if (round)
        painter.drawEllipse(frame);
    else
        painter.drawRect(frame);
    painter.restore();
}

} // namespace

void IndicatorStyle::drawControl(ControlElement element, const QStyleOption* option,
                                 QPainter* painter, const QWidget* widget) const
{
    QProxyStyle::drawControl(element, option, painter, widget);
    const auto* item = qstyleoption_cast<const QStyleOptionMenuItem*>(option);
    if (item == nullptr || item->menuItemType != QStyleOptionMenuItem::Separator || !isDark(*item))
        return;
    const QRect& place = item->rect;
    painter->setPen(item->palette.color(QPalette::PlaceholderText));
    painter->drawLine(place.left() + 5, place.center().y(), place.right() - 5, place.center().y());
}

void IndicatorStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                                   QPainter* painter, const QWidget* widget) const
{
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    const bool round = element == PE_IndicatorRadioButton;
    if ((round || element == PE_IndicatorCheckBox) && isDark(*option))
        paintFrame(*painter, *option, option->rect.adjusted(0, 0, -1, -1), round);
}

void IndicatorStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                        QPainter* painter, const QWidget* widget) const
{
    QProxyStyle::drawComplexControl(control, option, painter, widget);
    if (control != CC_ScrollBar)
        return;
    painter->setPen(option->palette.color(QPalette::PlaceholderText));
    painter->drawRect(option->rect.adjusted(0, 0, -1, -1));
    const QRect slider = subControlRect(CC_ScrollBar, option, SC_ScrollBarSlider, widget);
    paintFrame(*painter, *option, slider.adjusted(-1, 0, 0, -1), false);
    if (option->state.testFlag(State_HasFocus)) {
        painter->setPen(QPen(option->palette.color(QPalette::Highlight), 2));
        painter->drawRect(option->rect.adjusted(1, 1, -1, -1));
    }
}

} // namespace quillet
