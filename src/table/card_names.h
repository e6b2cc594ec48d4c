#pragma once

#include "engine/slot.h"
#include "table/card_on_table.h"

#include <QString>

namespace quillet
{

// A face's name, "Queen of hearts"; card number 0..51.
[[nodiscard]] QString cardName(std::int32_t cardNumber);

// The name of a card place for screen readers, "Card 2: Queen of hearts, held".
[[nodiscard]] QString spokenCard(Slot slot, const CardOnTable& card, bool held);

} // namespace quillet
