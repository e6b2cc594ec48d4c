#pragma once

#include "engine/deck.h"
#include "tests/kit/cards.h"

#include <algorithm>
#include <string_view>

namespace quillet::test
{

// Decks with these ten cards on top, as text, "As Ks ...": five to be dealt, then the replacements
// of slots 0..4.
class StackedDeck : public DeckSource
{
public:
    void stack(std::string_view tenCards)
    {
        m_deck = buildDeck();
        for (std::size_t at = 0; 3 * at < tenCards.size(); ++at)
            std::swap(m_deck[at],
                      *std::ranges::find(m_deck, card(tenCards.substr(3 * at, 2)).cardId));
    }

    PokerDeck nextDeck() override { return m_deck; }

private:
    PokerDeck m_deck = buildDeck();
};

} // namespace quillet::test
