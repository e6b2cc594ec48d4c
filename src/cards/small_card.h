#pragma once

#include <QImage>
#include <QSize>

#include <cstdint>

namespace quillet
{

// A face (0..51) for a line of text: only a rank and a suit, as large as possible. Exactly
// `deviceSize` pixels, transparent outside the rounded corners.
[[nodiscard]] QImage renderSmallCard(std::int32_t face, QSize deviceSize);

} // namespace quillet
