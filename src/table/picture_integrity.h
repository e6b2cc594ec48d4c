#pragma once

#include <QByteArray>

namespace quillet
{

// Whether a JPEG, GIF or bitmap file goes on to its end. Decoders take a file that was cut short
// and invent the rest. Files of other kinds count as whole; what is wrong with them is the
// decoder's affair.
[[nodiscard]] bool goesOnToItsEnd(const QByteArray& file);

} // namespace quillet
