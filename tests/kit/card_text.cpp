#include "tests/kit/card_text.h"

#include <stdexcept>
#include <string>

namespace quillet::test
{

Card card(std::string_view text)
{
    const auto rank = std::string_view("A23456789TJQK").find(text.at(0));
    const auto suit = std::string_view("cdhs").find(text.at(1));
    if (text.size() != 2 || rank == std::string_view::npos || suit == std::string_view::npos)
        throw std::invalid_argument("not a card: " + std::string(text));
    return makeCard(static_cast<std::int16_t>(rank * 4 + suit));
}

std::array<Card, 5> hand(std::string_view text)
{
    if (text.size() != 14)
        throw std::invalid_argument("not five cards: " + std::string(text));
    std::array<Card, 5> cards;
    for (std::size_t i = 0; i < cards.size(); ++i)
        cards[i] = card(text.substr(3 * i, 2));
    return cards;
}

} // namespace quillet::test
