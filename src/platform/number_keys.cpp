#include "platform/number_keys.h"

namespace quillet
{

namespace
{

// The scan codes of both platforms are those of the kernel plus 8.
constexpr quint32 keyOfOne = 10;
constexpr quint32 keyOfZero = 19;

bool knowsScanCodes(const QString& platform)
{
    return platform == QLatin1String("xcb") || platform.startsWith(QLatin1String("wayland"));
}

} // namespace

std::optional<int> digitOfKey(const QKeyEvent& event, const QString& platform)
{
    const Qt::KeyboardModifiers modifiers = event.modifiers() & ~Qt::KeypadModifier;
    if ((modifiers & ~Qt::ShiftModifier) != Qt::NoModifier)
        return std::nullopt;
    const QString text = event.text();
    const int digit = text.size() == 1 ? text.front().digitValue() : -1;
    if (digit >= 0)
        return digit;
    const quint32 key = event.nativeScanCode();
    const bool inNumberRow = key >= keyOfOne && key <= keyOfZero;
    if (!inNumberRow || modifiers != Qt::NoModifier || !knowsScanCodes(platform))
        return std::nullopt;
    return static_cast<int>(key - keyOfOne + 1) % 10;
}

} // namespace quillet
