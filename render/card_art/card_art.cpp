#include "render/card_art/card_art.h"

#include "render/card_art/backs.h"
#include "render/card_art/card_canvas.h"
#include "render/card_art/faces.h"

namespace quillet
{

QImage renderCard(int cardNumber, QSize deviceSize)
{
    if (cardNumber == hatchBack)
        return hatchPicture(deviceSize);
    CardCanvas canvas(deviceSize);
    if (cardNumber >= 0 && cardNumber < 52) {
        const int rank = cardNumber / 4 + 1;
        const int suit = cardNumber % 4;
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
