#pragma once

#include "table/card_library.h"
#include "table/table_pictures.h"

namespace quillet
{

// The deck as four pictures at one place: picture k shows 4 - k backs, each two pixels further
// right and one further down than the one below it.
class DeckPile
{
public:
    DeckPile(TablePictures& pictures, CardLibrary& library)
        : m_pictures(pictures), m_library(library)
    {
    }

    // Paints the pile with this back.
    void DrawDealDeck(std::int32_t backNumber);
    // Makes the pile ready for a game; the cards themselves are shuffled at each deal.
    void shuffleCards(std::int32_t backNumber) { DrawDealDeck(backNumber); }

private:
    TablePictures& m_pictures;
    CardLibrary& m_library;
};

} // namespace quillet
