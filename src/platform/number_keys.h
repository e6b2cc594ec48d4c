#pragma once

#include <QKeyEvent>
#include <QString>

#include <optional>

namespace quillet
{

// The digit 0..9 of a key, with or without Shift, on the key pad or in the number row. On keyboards
// whose number row gives digits only with Shift, such as French ones, the position of the key
// counts. Nothing for any other key, and for combinations with Ctrl, Alt and the like.
//
// `platform` is Qt's name of it. Positions are known on X11 and Wayland.
[[nodiscard]] std::optional<int> digitOfKey(const QKeyEvent& event, const QString& platform);

} // namespace quillet
