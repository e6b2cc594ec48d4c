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
    return c == ' ' || c == '\t' || c == ',';
}

// Takes one card off the front of the text.
DeckPlace takeCard(std::string_view& text)
{
    const bool ten = text.starts_with("10");
    const std::size_t length = ten ? 3 : 2;
    const std::string word(text.substr(0, std::min(length, text.size())));
    const auto lower = static_cast<char>(std::tolower(static_cast<unsigned char>(word.back())));
    const auto upper = static_cast<char>(std::toupper(static_cast<unsigned char>(word.front())));
    const auto rank = ten ? std::size_t{9} : ranks.find(upper);
    const auto suit = suits.find(lower);
    if (word.size() != length || rank == std::string_view::npos || suit == std::string_view::npos)
        throw BadHand("'" + word +
                      "' is not a card: write a rank (A 2 3 4 5 6 7 8 9 T J Q K) and a "
                      "suit (c d h s), such as Tc");
    text.remove_prefix(length);
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
