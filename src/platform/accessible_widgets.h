#pragma once

#include <QAccessible>
#include <QWidget>

namespace quillet
{

// Gives one of our own widgets a role for screen readers. Call this before a reader asks for the
// widget.
//   Link          a text or strip whose signal clicked() leads to a page
//   Button        a picture whose slot activate() does what a click does
//   CheckBox      the same, with a property "checked"
//   NoRole        hidden; its content is read elsewhere
//   Notification  a message; readers say its accessible name each time it appears
void presentAs(QWidget& widget, QAccessible::Role role);

} // namespace quillet
