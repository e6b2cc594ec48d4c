#pragma once

#include <QWidget>

namespace quillet
{

// The roles of our own widgets for screen readers. Call these before a reader asks for the widget.

// Its content is heard elsewhere.
void hideFromReaders(QWidget& widget);

// A text or strip whose signal clicked() leads to a page.
void presentAsLink(QWidget& widget);

// A picture whose slot activate() does what a click on it does; the check box has a property
// "checked", too.
void presentAsButton(QWidget& widget);
void presentAsCheckBox(QWidget& widget);

} // namespace quillet
