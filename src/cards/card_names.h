#pragma once

#include <QString>

#include <cstddef>
#include <cstdint>

namespace quillet
{

// A face's name, "Queen of hearts"; card number 0..51.
[[nodiscard]] QString cardName(std::int32_t cardNumber);

// The name of a card place for screen readers, "Card 2: Queen of hearts, held".
[[nodiscard]] QString spokenCard(std::size_t slot, const QString& shown, bool held);

} // namespace quillet
