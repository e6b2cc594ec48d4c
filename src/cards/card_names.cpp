#include "cards/card_names.h"

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

QString spokenCard(std::size_t slot, const QString& shown, bool held)
{
    return QString("Card %1: %2%3").arg(slot + 1).arg(shown, held ? ", held" : "");
}

} // namespace quillet
