#pragma once

#include <QProxyStyle>

namespace quillet
{

// Frames check boxes and option buttons, and draws the separators of menus, in the colour of the
// text if the window is dark. Always frames a scroll bar and its slider. Qt's own style frames them
// in a shade of the window's colour, which is invisible on black, and shows no focus on a scroll
// bar.
class IndicatorStyle : public QProxyStyle
{
    Q_OBJECT

public:
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                            QPainter* painter, const QWidget* widget) const override;
};

} // namespace quillet
