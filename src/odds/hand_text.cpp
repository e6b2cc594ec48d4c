#include "odds/hand_text.h"

#include "odds/bad_input.h"

#include <algorithm>
#include <cctype>
#include <span>

namespace quillet::odds
{

namespace
{

constexpr std::string_view ranks = "A23456789TJQK";
constexpr std::string_view suits = "cdhs";

bool isBlank(char c)
{
    return c == ' ' || c == '\t' || c == ',' || c == '\r';
}

// Takes a suit, a letter or its sign, off the front of the text; 4 if there is none.
std::size_t takeSuit(std::string_view& text)
{
    constexpr std::array<std::string_view, 8> signs{"\u2663", "\u2666", "\u2665", "\u2660",
                                                    "\u2667", "\u2662", "\u2661", "\u2664"};
    // After a sign, whether it is shown as text or as a picture.
    constexpr std::array<std::string_view, 2> variations{"\ufe0e", "\ufe0f"};
    const auto starts = [&text](std::string_view sign) { return text.starts_with(sign); };
    const auto sign = std::ranges::find_if(signs, starts);
    if (sign != signs.end()) {
        text.remove_prefix(sign->size());
        if (std::ranges::any_of(variations, starts))
            text.remove_prefix(variations[0].size());
        return static_cast<std::size_t>(sign - signs.begin()) % suits.size();
    }
    const auto letter =
        text.empty()
            ? std::string_view::npos
            : suits.find(static_cast<char>(std::tolower(static_cast<unsigned char>(text.front()))));
    text.remove_prefix(std::min<std::size_t>(text.size(), 1));
    return std::min(letter, suits.size());
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
        throw BadInput("'" + printable({before.begin(), end}) +
                       "' is not a card: write a rank (A 2 3 4 5 6 7 8 9 T J Q K) and a "
                       "suit (c d h s), such as Tc");
    }
    return static_cast<DeckPlace>(suit * 13 + rank);
}

} // namespace

std::array<DeckPlace, 5> parseHand(std::string_view text)
{
    text = text.substr(0, text.find('#'));
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
            throw BadInput("the hand holds " + cardText(place) + " twice");
        if (count < places.size())
            places[count] = place;
        ++count;
    }
    if (count != places.size())
        throw BadInput("a hand has 5 cards, not " + std::to_string(count));
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

} // namespace quillet::odds
