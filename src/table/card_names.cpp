#include "table/card_names.h"

#include "cards/card_numbers.h"
#include "engine/card.h"

#include <QCoreApplication>

#include <array>
#include <cassert>

namespace quillet
{

namespace
{

QString translated(const char* text)
{
    return QCoreApplication::translate("cards", text);
}

} // namespace

QString cardName(std::int32_t cardNumber)
{
    static constexpr std::array<const char*, 13> ranks{"Ace",  "Two",   "Three", "Four", "Five",
                                                       "Six",  "Seven", "Eight", "Nine", "Ten",
                                                       "Jack", "Queen", "King"};
    static constexpr std::array<const char*, 4> suits{"clubs", "diamonds", "hearts", "spades"};
    assert(isFace(cardNumber));
    return translated("%1 of %2")
        .arg(translated(ranks.at(static_cast<std::size_t>(rankOf(cardNumber) - 1))),
             translated(suits.at(static_cast<std::size_t>(suitOf(cardNumber)))));
}

QString spokenCard(Slot slot, const CardOnTable& card, bool held)
{
    QString what = translated("empty");
    if (card.side == CardOnTable::Side::back)
        what = translated("face down");
    else if (card.side == CardOnTable::Side::face)
        what = cardName(card.number);
    if (held)
        what = translated("%1, held").arg(what);
    return translated("Card %1: %2").arg(slot + 1).arg(what);
}

} // namespace quillet
