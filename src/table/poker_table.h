#pragma once

#include "engine/card_table.h"
#include "faults/guarded.h"
#include "settings/preferences.h"
#include "table/card_flight.h"
#include "table/card_library.h"
#include "table/deck_pile.h"
#include "table/table_background.h"
#include "table/table_painter.h"

#include <QObject>
#include <QString>

#include <array>
#include <optional>

class QPainter;

namespace quillet
{

// The painted table with everything on it: what each card place shows, how it looks and what
// screen readers call it, and how cards get there. It reports clicks and knows nothing of the game.
class PokerTable : public QObject, public CardTable
{
    Q_OBJECT

public:
    // The canvas is a child of the parent. The preferences may change at any time.
    PokerTable(const Preferences& preferences, ErrorBox errorBox, QWidget* parent);

    // The table's widget; parent of chart and status bar.
    [[nodiscard]] TableCanvas& canvas() { return m_canvas; }
    // Must be open (cdtInit) before anything is painted.
    [[nodiscard]] CardLibrary& library() { return m_library; }
    // The slot of the card that has the keyboard focus.
    [[nodiscard]] std::optional<Slot> focusedSlot() const;

    [[nodiscard]] TableBackground& background() { return m_background; }
    // Begins to draw the backs that the first frame shows, on threads.
    void expectBacks();

    // Sizes the canvas. The places are computed from the measures at the next painting.
    void setMeasures(const TableMeasures& measures);
    [[nodiscard]] const TableMeasures& measures() const { return m_measures; }
    void makePictures();
    // Before the first game.
    void paintFirstTable();
    // Paints everything again for a game: no card, the deck in place.
    void resetGraphics();
    // Paints the pile in the chosen back.
    void DrawDealDeck() { m_pile.DrawDealDeck(m_preferences.prfPKBackFace); }
    // Makes the pile ready for a game. The name is fixed; each deal shuffles its own deck.
    void shuffleCards() { DrawDealDeck(); }

    // The program is about to end; nothing is painted from now on.
    void close();

    [[nodiscard]] bool isCardShowing(Slot slot) const override;
    void takeAway(Slot slot) override;
    void flyCardTo(Slot slot) override;
    void showFace(Slot slot, std::int16_t cardId, bool finished) override;
    void showHold(Slot slot, bool held) override;
    void showDeck() override;
    void recover() override;

signals:
    void deckClicked(std::int16_t picture); // 0..3, of picDeal
    void cardPressed(Slot slot);
    void cardDoubleClicked(Slot slot);

private:
    // What a card place shows, so that it can be painted again for a display of another scale.
    struct CardOnTable {
        enum class Side { none, back, face };

        Side side = Side::none;
        std::int32_t number = 0; // card number of the back or face
        bool hatched = false;    // with the crosshatch of a finished hand
    };

    // What screen readers call it.
    [[nodiscard]] static QString nameOf(const CardOnTable& card);
    void connectDeck();
    void makePlaces();
    void paintOutlines(QPainter& painter, double scale) const;
    void show(Slot slot, const CardOnTable& card);
    void paintCard(Slot slot);
    void describe(Slot slot);
    void followScale();

    const Preferences& m_preferences;
    ErrorBox m_errorBox;

    TableMeasures m_measures;
    std::array<CardOnTable, 5> m_cards; // what the places show
    bool m_closed = false;

    TableCanvas& m_canvas; // a child of the parent
    TableBackground m_background;
    CardLibrary m_library;
    DeckPile m_pile;
    CardBoxes picPoker{}; // children of the canvas
    TablePainter m_painter;
    CardFlight m_flight;
};

} // namespace quillet
