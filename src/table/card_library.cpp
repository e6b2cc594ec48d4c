#include "table/card_library.h"

#include "cards/card_numbers.h"
#include "faults/run_time_error.h"
#include "settings/preferences.h"

namespace quillet
{

namespace
{

// An edited settings file can name a back that does not exist.
std::int32_t existingBack(std::int32_t cardNumber)
{
    return isBack(cardNumber) ? cardNumber : defaultBack;
}

} // namespace

void CardLibrary::cdtInit(std::int32_t& width, std::int32_t& height)
{
    width = cardArtWidth;
    height = cardArtHeight;
    m_ready = true;
}

void CardLibrary::expectBack(std::int32_t backNumber, double scale)
{
    prepare(existingBack(backNumber), scale, std::launch::async);
}

void CardLibrary::cdtDraw(Surface& dc, std::int32_t x, std::int32_t y, std::int32_t cardNumber,
                          std::int32_t drawMode, std::uint32_t)
{
    if (!m_ready)
        throw RunTimeError("The card library is closed");
    if (drawMode == drawBack)
        cardNumber = existingBack(cardNumber);
    if (drawMode == drawBack || (drawMode == drawFace && isFace(cardNumber)))
        dc.drawPixels(prepare(cardNumber, dc.scale(), std::launch::deferred).get(), QPointF(x, y));
}

void CardLibrary::cdtTerm()
{
    m_ready = false;
    m_cards.clear();
}

const CardLibrary::Picture& CardLibrary::prepare(std::int32_t cardNumber, double scale,
                                                 std::launch when)
{
    if (scale != m_cachedScale)
        m_cards.clear();
    m_cachedScale = scale;
    Picture& picture = m_cards[cardNumber];
    if (!picture.valid()) {
        const QSize size(deviceSize(cardArtWidth, scale), deviceSize(cardArtHeight, scale));
        picture = std::async(when, renderCard, cardNumber, size);
    }
    return picture;
}

} // namespace quillet
