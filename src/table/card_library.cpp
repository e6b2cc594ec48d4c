#include "table/card_library.h"

#include "cards/card_art.h"
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

CardLibrary::CardLibrary() : CardLibrary(QSize(cardArtWidth, cardArtHeight)) {}

CardLibrary::CardLibrary(QSize cardSize) : m_cardSize(cardSize) {}

void CardLibrary::cdtInit(std::int32_t& width, std::int32_t& height)
{
    width = m_cardSize.width();
    height = m_cardSize.height();
    m_ready = true;
}

void CardLibrary::expectBack(std::int32_t backNumber, double scale)
{
    useScale(scale);
    backNumber = existingBack(backNumber);
    if (m_cards.contains(backNumber) || m_expected.contains(backNumber))
        return;
    m_expected[backNumber] =
        std::async(std::launch::async, renderCard, backNumber, deviceCardSize(scale));
}

void CardLibrary::cdtDraw(Surface& dc, std::int32_t x, std::int32_t y, std::int32_t cardNumber,
                          std::int32_t drawMode, std::uint32_t)
{
    if (!m_ready)
        throw RunTimeError("The card library is closed");
    if (drawMode == drawBack)
        cardNumber = existingBack(cardNumber);
    if (drawMode == drawBack || (drawMode == drawFace && isFace(cardNumber)))
        dc.drawPixels(card(cardNumber, dc.scale()), QPointF(x, y));
}

void CardLibrary::cdtTerm()
{
    m_ready = false;
    m_cards.clear();
    m_expected.clear();
}

QSize CardLibrary::deviceCardSize(double scale) const
{
    return {deviceSize(m_cardSize.width(), scale), deviceSize(m_cardSize.height(), scale)};
}

void CardLibrary::useScale(double scale)
{
    if (scale == m_cachedScale)
        return;
    m_cards.clear();
    m_expected.clear();
    m_cachedScale = scale;
}

const QImage& CardLibrary::card(std::int32_t cardNumber, double scale)
{
    useScale(scale);
    QImage& picture = m_cards[cardNumber];
    if (!picture.isNull())
        return picture;
    auto expected = m_expected.extract(cardNumber);
    picture = expected ? expected.mapped().get() : renderCard(cardNumber, deviceCardSize(scale));
    return picture;
}

} // namespace quillet
