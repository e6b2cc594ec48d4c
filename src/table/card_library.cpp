#include "table/card_library.h"

#include "cards/card_art.h"
#include "cards/card_numbers.h"
#include "faults/run_time_error.h"

namespace quillet
{

CardLibrary::CardLibrary() : CardLibrary(QSize(cardArtWidth, cardArtHeight)) {}

CardLibrary::CardLibrary(QSize cardSize) : m_cardSize(cardSize) {}

void CardLibrary::cdtInit(std::int32_t& width, std::int32_t& height)
{
    width = m_cardSize.width();
    height = m_cardSize.height();
    m_ready = true;
}

void CardLibrary::cdtDraw(Surface& dc, std::int32_t x, std::int32_t y, std::int32_t cardNumber,
                          std::int32_t drawMode, std::uint32_t)
{
    if (!m_ready)
        throw RunTimeError("The card library is closed");
    // An edited settings file can name a back that does not exist.
    if (drawMode == drawBack && !isBack(cardNumber))
        cardNumber = defaultBack;
    if (drawMode == drawBack || (drawMode == drawFace && isFace(cardNumber)))
        dc.drawPixels(card(cardNumber, dc.scale()), QPointF(x, y));
}

void CardLibrary::cdtTerm()
{
    m_ready = false;
    m_cards.clear();
}

const QImage& CardLibrary::card(std::int32_t cardNumber, double scale)
{
    if (scale != m_cachedScale) {
        m_cards.clear();
        m_cachedScale = scale;
    }
    QImage& picture = m_cards[cardNumber];
    if (picture.isNull())
        picture = renderCard(cardNumber, QSize(deviceSize(m_cardSize.width(), scale),
                                               deviceSize(m_cardSize.height(), scale)));
    return picture;
}

} // namespace quillet
