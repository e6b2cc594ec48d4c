#pragma once

#include "engine/card.h"

#include <array>
#include <string_view>

namespace quillet::test
{

// A card by its usual name, "As" or "Tc". Throws std::invalid_argument for anything else.
[[nodiscard]] Card card(std::string_view text);

// Five cards with one blank between them, "As Ks Qs Js Ts".
[[nodiscard]] std::array<Card, 5> hand(std::string_view text);

} // namespace quillet::test
