#pragma once

#include <QKeyEvent>
#include <QString>

#include <optional>

namespace quillet
{

// The digit, 0..9, that a key gives, with Shift or without, on the key pad or in the number row. A
// key of the number row that gives no digit without Shift, as on French keyboards, stands for the
// one of its place. Nothing for any other key, and for combinations with Ctrl, Alt and the like.
//
// Places are known on X11 and Wayland, whose name for the toolkit is the platform's.
[[nodiscard]] std::optional<int> digitOfKey(const QKeyEvent& event, const QString& platform);

} // namespace quillet
