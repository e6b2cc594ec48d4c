#include "table/poker_table.h"

#include "cards/card_marks.h"
#include "cards/card_names.h"
#include "cards/card_numbers.h"
#include "platform/accessible_widgets.h"
#include "platform/desktop_colours.h"
#include "table/picture_box.h"
#include "table/table_canvas.h"

#include <QPainter>

#include <algorithm>
#include <utility>

namespace quillet
{

PokerTable::PokerTable(const Preferences& preferences, ErrorBox errorBox, QWidget* parent)
    : QObject(parent), m_preferences(preferences), m_errorBox(std::move(errorBox)),
      m_canvas(*new TableCanvas(parent)), m_background(m_canvas), m_pile(m_canvas, m_library),
      m_painter(m_canvas, m_background.picture(), picPoker, m_pile, m_library),
      m_flight(m_canvas, m_pile, m_library, preferences, m_errorBox)
{
    setObjectName("pokerTable");
    m_canvas.setObjectName("table");
    m_canvas.setAccessibleName("Card table");
    m_canvas.setFocusPolicy(Qt::ClickFocus);
    m_canvas.setOverlays(
        [this](QPainter& painter, double scale) { paintOutlines(painter, scale); });
    connect(&m_canvas, &TableCanvas::scaleChanged, this, &PokerTable::followScale);
    connectDeck();
    makePlaces();
}

void PokerTable::connectDeck()
{
    for (std::size_t i = 0; i < m_pile.boxes().size(); ++i) {
        PictureBox& deck = *m_pile.boxes()[i];
        // The others are beneath the first.
        presentAs(deck, i == 0 ? QAccessible::Button : QAccessible::NoRole);
        deck.setAccessibleName("Deck");
        connect(&deck, &PictureBox::clicked, this,
                [this, i] { emit deckClicked(static_cast<std::int16_t>(i)); });
    }
    m_pile.top().setFocusPolicy(Qt::TabFocus);
}

void PokerTable::makePlaces()
{
    for (const Slot slot : allSlots) {
        auto* place = new PictureBox(m_canvas);
        picPoker[slot] = place;
        place->setObjectName(QString("picPoker%1").arg(slot));
        place->setFocusPolicy(Qt::TabFocus);
        presentAs(*place, QAccessible::CheckBox);
        connect(place, &PictureBox::mouseDown, this, [this, slot] { emit cardPressed(slot); });
        connect(place, &PictureBox::doubleClicked, this,
                [this, slot] { emit cardDoubleClicked(slot); });
        describe(slot);
    }
}

std::optional<Slot> PokerTable::focusedSlot() const
{
    const auto focused = std::ranges::find_if(picPoker, &QWidget::hasFocus);
    if (focused == picPoker.end())
        return std::nullopt;
    return static_cast<Slot>(focused - picPoker.begin());
}

void PokerTable::expectBacks()
{
    for (const std::int32_t back : {m_preferences.prfPKBackFace, std::int32_t{hatchBack}})
        m_library.expectBack(back, canvas().devicePixelRatioF());
}

void PokerTable::setMeasures(const TableMeasures& measures)
{
    m_measures = measures;
    const QSizeF inner(measures.innerWidth, measures.innerHeight);
    m_canvas.setFixedSize(inner.toSize().expandedTo({1, 1}));
}

void PokerTable::makePictures()
{
    m_painter.sizePictures(m_measures, m_canvas.devicePixelRatioF());
}

void PokerTable::paintFirstTable()
{
    m_painter.paintBackground();
    m_painter.paintFirstTable(m_measures);
}

void PokerTable::resetGraphics()
{
    guarded(m_errorBox, "resetGraphics", [this] {
        const QSizeF inner(m_measures.innerWidth, m_measures.innerHeight);
        if (m_canvas.innerSize() != inner || m_canvas.scale() != m_canvas.devicePixelRatioF())
            makePictures();
        for (const Slot slot : allSlots) {
            takeAway(slot);
            showHold(slot, false);
        }
        m_painter.repaint(m_measures, m_preferences.prfPKBackFace);
    });
}

void PokerTable::close()
{
    m_closed = true;
    m_library.cdtTerm();
}

bool PokerTable::isCardShowing(Slot slot) const
{
    return picPoker[slot]->isShowing();
}

void PokerTable::takeAway(Slot slot)
{
    m_cards[slot] = {};
    picPoker[slot]->setShowing(false);
    describe(slot);
}

void PokerTable::flyCardTo(Slot slot)
{
    // During the flight the deck is part of the table.
    showDeck();
    const std::int32_t backNumber = m_preferences.prfPKBackFace;
    const QPoint from = (m_pile.top().place().topLeft() + flyingCardOffset).toPoint();
    const QPoint to = picPoker[slot]->place().topLeft().toPoint();
    std::int32_t x = from.x();
    std::int32_t y = from.y();
    m_flight.AnimateCard(x, y, to.x(), to.y(), 1, backNumber, drawBack);

    // After an error in the flight, drawing still goes to the display, and the deck is hidden.
    m_canvas.setPersistentImage(true);
    m_pile.top().setShowing(true);
    show(slot, {CardOnTable::Side::back, backNumber, false});
    m_canvas.refresh();
}

void PokerTable::showFace(Slot slot, std::int16_t cardId, bool finished)
{
    show(slot, {CardOnTable::Side::face, cardId, finished});
    picPoker[slot]->refresh();
}

void PokerTable::showHold(Slot slot, bool held)
{
    PictureBox& place = *picPoker[slot];
    if (place.isChecked() == held)
        return;
    place.setChecked(held);
    m_canvas.presentWithNextFrame(place.place().adjusted(-4, -4, 4, 4));
    describe(slot);
}

void PokerTable::showDeck()
{
    PictureBox& deck = m_pile.top();
    const QPointF at = deck.place().topLeft();
    const QSizeF size = deck.place().size();
    m_canvas.keptForDrawing().copyFrom(deck.picture(), {0, 0}, size, at);
    deck.setShowing(true);
}

void PokerTable::recover()
{
    m_canvas.setPersistentImage(true);
    for (const Slot slot : allSlots)
        showHold(slot, false);
    m_pile.top().setShowing(true);
    m_canvas.refresh();
}

void PokerTable::paintOutlines(QPainter& painter, double scale) const
{
    const QColor colour = colourOf(static_cast<std::uint32_t>(m_preferences.prfCardOutlineColor));
    for (const Slot slot : allSlots) {
        if (picPoker[slot]->isChecked())
            paintHoldMarker(painter, picPoker[slot]->devicePlace(), scale, colour);
    }
}

void PokerTable::show(Slot slot, const CardOnTable& card)
{
    m_cards[slot] = card;
    paintCard(slot);
    picPoker[slot]->setShowing(true);
    describe(slot);
}

void PokerTable::paintCard(Slot slot)
{
    const CardOnTable& card = m_cards[slot];
    PictureBox& place = *picPoker[slot];
    place.restoreTableBehind();
    if (card.side != CardOnTable::Side::none)
        m_library.cdtDraw(place.picture(), 0, 0, card.number,
                          card.side == CardOnTable::Side::face ? drawFace : drawBack, whiteColour);
    if (card.hatched)
        m_painter.layHatch(place.picture(), {0, 0});
}

QString PokerTable::nameOf(const CardOnTable& card)
{
    switch (card.side) {
    case CardOnTable::Side::none:
        return "empty";
    case CardOnTable::Side::back:
        return "face down";
    case CardOnTable::Side::face:
        return cardName(card.number);
    }
    return {};
}

void PokerTable::describe(Slot slot)
{
    PictureBox& place = *picPoker[slot];
    place.setAccessibleName(spokenCard(slot, nameOf(m_cards[slot]), place.isChecked()));
}

// Paints everything again at the scale of the display that the table is on now.
void PokerTable::followScale()
{
    if (m_closed)
        return;
    // A flight may already have painted part of the window at the new scale.
    m_canvas.presentWholeWindowWithNextFrame();
    if (m_canvas.scale() == m_canvas.devicePixelRatioF())
        return;
    // If the file has become unreadable, the loaded picture stays.
    guarded(m_errorBox, "followScale", [this] { m_background.reload(); });
    makePictures();
    std::array<bool, 5> showing{};
    for (const Slot slot : allSlots)
        showing[slot] = isCardShowing(slot);
    m_painter.repaint(m_measures, m_preferences.prfPKBackFace);
    for (const Slot slot : allSlots) {
        paintCard(slot);
        picPoker[slot]->setShowing(showing[slot]);
    }
    showDeck();
    m_canvas.refresh();
}

} // namespace quillet
