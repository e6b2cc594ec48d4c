#pragma once

#include <QString>

namespace quillet
{

// Gives all windows the icon ":/icons/NAME-SIZE.png" with the first events, when the first window
// has just appeared.
void useWindowIcon(const QString& name);

} // namespace quillet
