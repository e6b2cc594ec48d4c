#pragma once

#include "coach/hold_coach.h"

#include <array>
#include <cstdint>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace quillet::test
{

// A card by its usual name, "As" or "Tc". Throws std::invalid_argument for anything else.
inline Card card(std::string_view text)
{
    const auto rank = std::string_view("A23456789TJQK").find(text.at(0));
    const auto suit = std::string_view("cdhs").find(text.at(1));
    if (text.size() != 2 || rank == std::string_view::npos || suit == std::string_view::npos)
        throw std::invalid_argument("not a card: " + std::string(text));
    return makeCard(static_cast<std::int16_t>(rank * 4 + suit));
}

// Five cards with blanks between them, "As Ks Qs Js Ts".
inline std::array<Card, 5> hand(std::string_view text)
{
    if (text.size() != 14)
        throw std::invalid_argument("not five cards: " + std::string(text));
    std::array<Card, 5> cards;
    for (std::size_t i = 0; i < cards.size(); ++i)
        cards[i] = card(text.substr(3 * i, 2));
    return cards;
}

// Calls visit for every set of this many cards of the deck, in ascending order.
template <typename Visit>
void forEachChoice(std::size_t count, const Visit& visit, std::vector<Card> chosen = {})
{
    if (chosen.size() == count)
        return visit(chosen);
    auto next = static_cast<std::int16_t>(chosen.empty() ? 0 : chosen.back().cardId + 1);
    for (chosen.emplace_back(); next < 52; ++next) {
        chosen.back() = makeCard(next);
        forEachChoice(count, visit, chosen);
    }
}

using HoldFlags = std::array<bool, 5>;

// The lowest bit is the first slot.
constexpr HoldFlags holdFlags(unsigned bits)
{
    HoldFlags flags{};
    for (bool& held : flags) {
        held = (bits & 1U) != 0;
        bits >>= 1U;
    }
    return flags;
}

// A hold that the coach accepts.
inline std::optional<HoldFlags> acceptedHold(const std::array<Card, 5>& hand, std::int16_t bestPlay)
{
    for (unsigned bits = 0; bits < 32; ++bits) {
        if (isCorrectHold(hand, holdFlags(bits), bestPlay))
            return holdFlags(bits);
    }
    return {};
}

} // namespace quillet::test
