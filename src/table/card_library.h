#pragma once

#include "cards/card_art.h"
#include "table/surface.h"

#include <QImage>
#include <QSize>

#include <cstdint>
#include <future>
#include <map>

namespace quillet
{

// Drawing modes of cdtDraw.
inline constexpr std::int32_t drawFace = 0;
inline constexpr std::int32_t drawBack = 1;

inline constexpr std::uint32_t whiteColour = 0xFFFFFF;

// Paints cards on pictures. Each card is drawn once per scale factor and then copied.
class CardLibrary
{
public:
    // Makes the library ready and returns the card size in logical pixels.
    void cdtInit(std::int32_t& width, std::int32_t& height);

    // Starts to draw a back on a thread, before it is needed at this scale.
    void expectBack(std::int32_t backNumber, double scale);

    // Paints a face or a back with its top left corner at (x, y). An unknown back is drawn as the
    // default back; other unknown numbers draw nothing. The round corners are transparent. Throws
    // RunTimeError before cdtInit and after cdtTerm.
    void cdtDraw(Surface& dc, std::int32_t x, std::int32_t y, std::int32_t cardNumber,
                 std::int32_t drawMode, std::uint32_t backgroundColour);

    void cdtTerm();

    // In logical pixels.
    [[nodiscard]] QSize cardSize() const { return {cardArtWidth, cardArtHeight}; }

private:
    using Picture = std::shared_future<QImage>;

    // The card's picture at this scale; draws it, now on a thread or when it is needed.
    const Picture& prepare(std::int32_t cardNumber, double scale, std::launch when);

    bool m_ready = false;
    double m_cachedScale = 0.0;
    std::map<std::int32_t, Picture> m_cards; // by card number, for the cached scale
};

} // namespace quillet
