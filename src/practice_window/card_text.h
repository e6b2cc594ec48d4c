#pragma once

#include <QString>

namespace quillet::practice_window
{

// The text with its card codes ("Th") as a player reads them ("10♥").
[[nodiscard]] QString withSuitSigns(const QString& text);

// The same as a screen reader should say them ("Ten of hearts").
[[nodiscard]] QString spokenCardCodes(const QString& text);

} // namespace quillet::practice_window
