#pragma once

#include "faults/guarded.h"
#include "settings/preferences.h"
#include "table/card_library.h"
#include "table/deck_pile.h"
#include "table/table_canvas.h"

#include <cstdint>
#include <utility>

namespace quillet
{

// Flies one card over the painted table. No event is handled during a flight. Its speed depends on
// prfAnimationDelay.
class CardFlight
{
public:
    CardFlight(TableCanvas& canvas, DeckPile& pile, CardLibrary& library,
               const Preferences& preferences, ErrorBox errorBox)
        : m_canvas(canvas), m_pile(pile), m_library(library), m_preferences(preferences),
          m_errorBox(std::move(errorBox))
    {
    }

    // Moves the card by stepSize pixels of the longer axis in each frame and leaves it at
    // (toX, toY), on the display only. fromX and fromY end at the position of the last frame. All
    // in logical pixels. An error is shown in a box and ends the flight.
    void AnimateCard(std::int32_t& fromX, std::int32_t& fromY, std::int32_t toX, std::int32_t toY,
                     std::int16_t stepSize, std::int32_t cardNumber, std::int32_t drawMode);

private:
    struct Path;

    void prepareTable();
    void sizePictures();
    void drawFrame(std::int32_t x, std::int32_t y, const Path& path, std::int32_t cardNumber,
                   std::int32_t drawMode);
    void land(std::int32_t toX, std::int32_t toY, std::int32_t cardNumber, std::int32_t drawMode);
    void show(const QRect& card, const QRect& copied);

    TableCanvas& m_canvas;
    DeckPile& m_pile;
    CardLibrary& m_library;
    const Preferences& m_preferences;
    ErrorBox m_errorBox;
    Surface BoardBuffer; // the table with the flying card
    Surface picBuffer;   // the table under the card
    Surface picAnimate;  // the card where it lands
    QRect m_lastFrame;   // where the card is on the display, in device pixels
};

} // namespace quillet
