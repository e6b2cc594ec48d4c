#include "odds/hand_text.h"

#include <algorithm>
#include <cctype>
#include <span>

namespace quillet
{

namespace
{

constexpr std::string_view ranks = "A23456789TJQK";
constexpr std::string_view suits = "cdhs";

bool isBlank(char c)
{
    return c == ' ' || c == '\t' || c == ',' || c == '\r';
}

// The suit at the front of the text, a letter or its sign, which is taken off; 4 for none.
std::size_t takeSuit(std::string_view& text)
{
    constexpr std::array<std::string_view, 4> signs{"\u2663", "\u2666", "\u2665", "\u2660"};
    for (std::size_t suit = 0; suit < signs.size(); ++suit) {
        if (text.starts_with(signs[suit])) {
            text.remove_prefix(signs[suit].size());
            return suit;
        }
    }
    const auto letter =
        text.empty()
            ? std::string_view::npos
            : suits.find(static_cast<char>(std::tolower(static_cast<unsigned char>(text.front()))));
    text.remove_prefix(std::min<std::size_t>(text.size(), 1));
    return std::min(letter, signs.size());
}

// Takes one card off the front of the text.
DeckPlace takeCard(std::string_view& text)
{
    const std::string_view before = text;
    const bool ten = text.starts_with("10");
    const auto upper = static_cast<char>(std::toupper(static_cast<unsigned char>(text.front())));
    const auto rank = ten ? std::size_t{9} : ranks.find(upper);
    text.remove_prefix(ten ? 2 : 1);
    const auto suit = takeSuit(text);
    if (rank == std::string_view::npos || suit == 4) {
        const auto end = std::ranges::find_if(before, isBlank);
        throw BadHand("'" + std::string(before.begin(), end) +
                      "' is not a card: write a rank (A 2 3 4 5 6 7 8 9 T J Q K) and a "
                      "suit (c d h s), such as Tc");
    }
    return static_cast<DeckPlace>(suit * 13 + rank);
}

} // namespace

std::array<DeckPlace, 5> parseHand(std::string_view text)
{
    std::array<DeckPlace, 5> places{};
    std::size_t count = 0;
    while (true) {
        while (!text.empty() && isBlank(text.front()))
            text.remove_prefix(1);
        if (text.empty())
            break;
        const DeckPlace place = takeCard(text);
        const auto before = std::span(places).first(std::min(count, places.size()));
        if (std::ranges::find(before, place) != before.end())
            throw BadHand("the hand holds " + cardText(place) + " twice");
        if (count < places.size())
            places[count] = place;
        ++count;
    }
    if (count != places.size())
        throw BadHand("a hand has 5 cards, not " + std::to_string(count));
    return places;
}

std::string cardText(DeckPlace place)
{
    return {ranks[place % 13U], suits[place / 13U]};
}

std::string holdText(const std::array<DeckPlace, 5>& places, Hold hold)
{
    std::string text;
    for (std::size_t i = 0; i < places.size(); ++i) {
        if ((hold >> i & 1U) == 0)
            continue;
        if (!text.empty())
            text += ' ';
        text += cardText(places[i]);
    }
    return text.empty() ? "nothing" : text;
}

} // namespace quillet
