#pragma once

#include <QWidget>

namespace quillet
{

// Makes our own widgets known to screen readers: picture boxes as check boxes or buttons, and what
// the two functions below say. Once per process, before the first widget is asked for.
void installAccessibleWidgets();

// For a widget whose content a reader hears elsewhere. Before it is asked for.
void hideFromReaders(QWidget& widget);

// For a widget with a signal clicked() that leads to a page. Before it is asked for.
void presentAsLink(QWidget& widget);

} // namespace quillet
