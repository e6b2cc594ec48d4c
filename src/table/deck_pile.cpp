#include "table/deck_pile.h"

#include "table/picture_box.h"

namespace quillet
{

void DeckPile::DrawDealDeck(std::int32_t backNumber)
{
    for (std::int32_t k = 0; k < 4; ++k) {
        PictureBox& box = *m_pictures.picDeal[static_cast<std::size_t>(k)];
        box.restoreTableBehind();
        for (std::int32_t m = 0; m < 4 - k; ++m)
            m_library.cdtDraw(box.picture(), m * pileStep.x(), m * pileStep.y(), backNumber,
                              drawBack, whiteColour);
        box.refresh();
    }
}

} // namespace quillet
