#include "table/card_names.h"

#include "cards/card_numbers.h"
#include "engine/card.h"

#include <array>
#include <cassert>

namespace quillet
{

QString cardName(std::int32_t cardNumber)
{
    static constexpr std::array ranks{"Ace",   "Two",  "Three", "Four", "Five",  "Six", "Seven",
                                      "Eight", "Nine", "Ten",   "Jack", "Queen", "King"};
    static constexpr std::array suits{"clubs", "diamonds", "hearts", "spades"};
    assert(isFace(cardNumber));
    const QString rank = ranks.at(static_cast<std::size_t>(rankOf(cardNumber) - 1));
    const QString suit = suits.at(static_cast<std::size_t>(suitOf(cardNumber)));
    return QString("%1 of %2").arg(rank, suit);
}

QString spokenCard(Slot slot, const CardOnTable& card, bool held)
{
    QString what = "empty";
    if (card.side == CardOnTable::Side::back)
        what = "face down";
    else if (card.side == CardOnTable::Side::face)
        what = cardName(card.number);
    if (held)
        what = QString("%1, held").arg(what);
    return QString("Card %1: %2").arg(slot + 1).arg(what);
}

} // namespace quillet
