#include "engine/hand_controller.h"
#include "main_window/chart_panel.h"
#include "main_window/frm_main.h"
#include "main_window/status_bar.h"
#include "table/masked_blit.h"
#include "table/picture_box.h"
#include "table/table_canvas.h"

namespace quillet
{

void frmMain::fadeStatusText(int step)
{
    picStatusBar->setTextColor(QColor(10 * step, 7 * step, 8 * step));
}

void frmMain::placeFlyingCard()
{
    m_pictures.picAnimate.place.moveTopLeft(m_pictures.picDeal[0]->place().topLeft() +
                                            flyingCardOffset);
}

void frmMain::paintFlyingCard(std::int32_t backNumber)
{
    // White is what an overlay lets through, outside its rounded corners, too.
    m_pictures.picAnimate.picture.fill(Qt::white);
    m_library.cdtDraw(m_pictures.picAnimate.picture, 0, 0, backNumber, drawBack, whiteColor);
}

void frmMain::paintDeckIntoTable()
{
    PictureBox& deck = *m_pictures.picDeal[0];
    const QPointF at = deck.place().topLeft();
    const QSizeF size = deck.place().size();
    m_pictures.canvas->keptForDrawing().copyFrom(deck.picture(), {0, 0}, size, at);
    m_pictures.BoardBuffer.copyFrom(deck.picture(), {0, 0}, size, at);
    deck.setShowing(true);
}

void frmMain::flyCardTo(int slot)
{
    // The deck's picture in the table is what is seen during the flight.
    paintDeckIntoTable();
    const QPoint from = m_pictures.picAnimate.place.topLeft().toPoint();
    const QPoint to = box(slot).place().topLeft().toPoint();
    // Where the card lands, its rounded corners show the table of that place.
    OffScreenBox& card = m_pictures.picAnimate;
    card.picture.copyFrom(m_pictures.canvas->kept(), to, card.place.size(), {0, 0});
    m_library.cdtDraw(card.picture, 0, 0, prfPKBackFace, drawBack, whiteColor);
    std::int32_t x = from.x();
    std::int32_t y = from.y();
    m_flight.AnimateCard(x, y, to.x(), to.y(), 1, prfPKBackFace, drawBack);
}

void frmMain::endFlights()
{
    // A flight that broke off has left the table to be drawn on directly, and the deck hidden.
    m_pictures.canvas->setPersistentImage(true);
    m_pictures.picDeal[0]->setShowing(true);
    m_pictures.canvas->refresh();
}

bool frmMain::cardShowing(int slot) const
{
    return m_pictures.picPoker.at(static_cast<std::size_t>(slot))->isShowing();
}

void frmMain::hideCard(int slot)
{
    m_cards.at(static_cast<std::size_t>(slot)) = {};
    box(slot).setShowing(false);
    describeSlot(slot);
}

void frmMain::showBack(int slot)
{
    m_cards.at(static_cast<std::size_t>(slot)) = {CardOnTable::Side::back, prfPKBackFace, false};
    paintCard(slot);
    box(slot).setShowing(true);
    box(slot).refresh();
    describeSlot(slot);
}

void frmMain::paintFace(int slot, std::int16_t cardId)
{
    m_cards.at(static_cast<std::size_t>(slot)) = {CardOnTable::Side::face, cardId, false};
    paintCard(slot);
    describeSlot(slot);
}

void frmMain::layOverlay(int slot)
{
    m_cards.at(static_cast<std::size_t>(slot)).overlaid = true;
    const Surface& hatch = m_pictures.picAnimate.picture;
    Surface& card = box(slot).picture();
    MaskedBlit(card, card, hatch, wholeOf(hatch), 0, 0, whiteColor);
}

void frmMain::refreshCard(int slot)
{
    box(slot).refresh();
}

void frmMain::paintCard(int slot)
{
    const CardOnTable& card = m_cards.at(static_cast<std::size_t>(slot));
    PictureBox& place = box(slot);
    place.restoreTableBehind();
    if (card.side != CardOnTable::Side::none)
        m_library.cdtDraw(place.picture(), 0, 0, card.number,
                          card.side == CardOnTable::Side::face ? drawFace : drawBack, whiteColor);
}

void frmMain::showHoldOutline(int slot, bool shown)
{
    bool& showing = m_outlineShowing.at(static_cast<std::size_t>(slot));
    if (showing == shown)
        return;
    showing = shown;
    m_pictures.canvas->presentWithNextFrame(box(slot).place().adjusted(-4, -4, 4, 4));
    describeSlot(slot);
}

void frmMain::showCounters(const Counters& counters)
{
    picPokerLabels->showCounters(counters);
}

void frmMain::recover()
{
    TableCanvas& canvas = *m_pictures.canvas;
    canvas.setPersistentImage(true);
    for (int slot = 0; slot < 5; ++slot)
        showHoldOutline(slot, false);
    m_pictures.picDeal[0]->setShowing(true);
    canvas.refresh();
}

void frmMain::shortDelay(std::int32_t delayTime)
{
    const std::uint32_t epoch = m_state.epoch;
    m_desktop.shortDelay(delayTime, [this, epoch] { return m_state.epoch != epoch; });
}

} // namespace quillet
