#include "table/deck_pile.h"

#include "table/picture_box.h"
#include "table/table_geometry.h"

namespace quillet
{

DeckPile::DeckPile(TableCanvas& canvas, CardLibrary& library) : m_library(library)
{
    // Index 0 comes last and so lies on top, where the player clicks.
    for (std::size_t i = picDeal.size(); i-- > 0;) {
        picDeal[i] = new PictureBox(canvas);
        picDeal[i]->setObjectName(QString("picDeal%1").arg(i));
    }
}

void DeckPile::resize(QSizeF size, double scale)
{
    for (PictureBox* box : picDeal)
        box->place({box->place().topLeft(), size}, scale);
}

void DeckPile::place(const QRectF& place)
{
    for (PictureBox* box : picDeal) {
        box->place(place, box->picture().scale());
        box->copyTableBehind();
    }
}

void DeckPile::setShowing(bool showing)
{
    for (PictureBox* box : picDeal)
        box->setShowing(showing);
}

void DeckPile::DrawDealDeck(std::int32_t backNumber)
{
    for (std::int32_t k = 0; k < 4; ++k) {
        PictureBox& box = *picDeal[static_cast<std::size_t>(k)];
        box.restoreTableBehind();
        for (std::int32_t m = 0; m < 4 - k; ++m)
            m_library.cdtDraw(box.picture(), m * pileStep.x(), m * pileStep.y(), backNumber,
                              drawBack, whiteColour);
        box.refresh();
    }
}

} // namespace quillet
