#include "cards/card_art.h"

#include "cards/backs.h"
#include "cards/card_canvas.h"
#include "cards/card_numbers.h"
#include "cards/faces.h"
#include "engine/card.h"

namespace quillet
{

QImage renderCard(std::int32_t cardNumber, QSize deviceSize)
{
    if (cardNumber == hatchBack)
        return hatchPicture(deviceSize);
    CardCanvas canvas(deviceSize);
    if (isFace(cardNumber)) {
        const int rank = rankOf(cardNumber);
        const int suit = suitOf(cardNumber);
        if (rank <= 10)
            paintNumberFace(canvas, rank, suit);
        else
            paintCourtFace(canvas, rank, suit);
    } else {
        paintBack(canvas, cardNumber);
    }
    return canvas.image();
}

} // namespace quillet
