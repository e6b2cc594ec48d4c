#include "table/poker_table.h"

#include "cards/card_numbers.h"
#include "platform/accessible_widgets.h"
#include "platform/desktop_colours.h"
#include "platform/file_exists.h"
#include "table/card_names.h"
#include "table/init_anim_delay.h"
#include "table/masked_blit.h"
#include "table/picture_box.h"
#include "table/picture_file.h"
#include "table/table_canvas.h"

#include <QDateTime>
#include <QFileInfo>
#include <QPainter>

#include <algorithm>
#include <utility>

namespace quillet
{

namespace
{

static_assert(usualBackFace == defaultBack);

QImage framePicture(FramePiece piece)
{
    const QImage picture(QStringLiteral(":/frame/%1.png").arg(QLatin1String(fileName(piece))));
    return picture.convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

// The places of a held card's marks, in device pixels.
struct HoldMarker {
    HoldMarker(const QRectF& card, double scale)
        : width(deviceSize(3, scale)),
          Shape1(card.adjusted(-width / 2, -width / 2, width / 2, width / 2)),
          Shape2(card.topLeft(), QSizeF(deviceSize(2, scale), card.height())),
          Shape3(Shape2.translated(card.width() - Shape2.width(), 0))
    {
    }

    double width;
    QRectF Shape1; // the outline, around the card
    QRectF Shape2; // inside the card's left edge
    QRectF Shape3; // inside its right edge
};

} // namespace

PokerTable::PokerTable(const Preferences& preferences, ErrorBox& errorBox, QWidget* parent)
    : QObject(parent), m_preferences(preferences), m_errorBox(errorBox),
      m_pile(m_pictures, m_library), m_painter(m_pictures, m_library, m_pile),
      m_flight(m_pictures, m_library, preferences, errorBox)
{
    setObjectName(QStringLiteral("pokerTable"));
    m_pictures.canvas = new TableCanvas(parent);
    canvas().setObjectName(QStringLiteral("table"));
    canvas().setAccessibleName(tr("Card table"));
    canvas().setFocusPolicy(Qt::ClickFocus);
    canvas().setOverlays(
        [this](QPainter& painter, double scale) { paintOutlines(painter, scale); });
    connect(&canvas(), &TableCanvas::scaleChanged, this, &PokerTable::followScale);
    makeDeck();
    makePlaces();
    for (const FramePiece piece : allFramePieces)
        m_pictures.framePieces[static_cast<std::size_t>(piece)] = framePicture(piece);
}

void PokerTable::makeDeck()
{
    // Index 0 comes last and so lies on top: the player's clicks carry it.
    for (std::size_t i = m_pictures.picDeal.size(); i-- > 0;) {
        auto* deck = new PictureBox(canvas());
        m_pictures.picDeal[i] = deck;
        deck->setObjectName(QStringLiteral("picDeal%1").arg(i));
        if (i > 0)
            hideFromReaders(*deck); // beneath the first
        else
            presentAsButton(*deck);
        deck->setAccessibleName(tr("Deck"));
        connect(deck, &PictureBox::clicked, this,
                [this, i] { emit deckClicked(static_cast<std::int16_t>(i)); });
    }
    m_pictures.picDeal[0]->setFocusPolicy(Qt::TabFocus);
}

void PokerTable::makePlaces()
{
    for (const Slot slot : allSlots) {
        auto* place = new PictureBox(canvas());
        m_pictures.picPoker[slot] = place;
        place->setObjectName(QStringLiteral("picPoker%1").arg(slot));
        place->setFocusPolicy(Qt::TabFocus);
        presentAsCheckBox(*place);
        connect(place, &PictureBox::mouseDown, this, [this, slot] { emit cardPressed(slot); });
        connect(place, &PictureBox::doubleClicked, this,
                [this, slot] { emit cardDoubleClicked(slot); });
        describe(slot);
    }
}

std::optional<Slot> PokerTable::focusedSlot() const
{
    const auto focused = std::ranges::find_if(m_pictures.picPoker, &QWidget::hasFocus);
    if (focused == m_pictures.picPoker.end())
        return std::nullopt;
    return static_cast<Slot>(focused - m_pictures.picPoker.begin());
}

QString PokerTable::backgroundVersion(const QString& path) const
{
    const QFileInfo file(path);
    return QStringLiteral("%1 %2 %3 %4")
        .arg(path)
        .arg(file.size())
        .arg(file.lastModified().toMSecsSinceEpoch())
        .arg(m_pictures.canvas->devicePixelRatioF());
}

void PokerTable::expectBackground(const QString& path)
{
    if (!FileExists(path.toStdString()))
        return;
    m_expectedVersion = backgroundVersion(path);
    m_expected =
        std::async(std::launch::async, loadPictureFile, path, canvas().devicePixelRatioF());
}

bool PokerTable::loadBackground(const QString& path)
{
    m_backgroundPath = path;
    if (!FileExists(path.toStdString()))
        return false;
    const QString version = backgroundVersion(path);
    if (version == m_backgroundVersion)
        return true;
    const bool expected = m_expected.valid() && version == m_expectedVersion;
    m_pictures.thePic =
        expected ? m_expected.get() : loadPictureFile(path, canvas().devicePixelRatioF());
    m_backgroundVersion = version;
    return true;
}

void PokerTable::setMeasures(const TableMeasures& measures)
{
    m_measures = measures;
    const QSizeF inner(measures.innerWidth, measures.innerHeight);
    canvas().setFixedSize(inner.toSize().expandedTo({1, 1}));
}

void PokerTable::makePictures()
{
    m_painter.sizePictures(m_measures, canvas().devicePixelRatioF());
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
        if (canvas().innerSize() != inner || canvas().scale() != canvas().devicePixelRatioF())
            makePictures();
        for (const Slot slot : allSlots) {
            takeAway(slot);
            showHold(slot, false);
        }
        m_painter.repaint(m_measures, m_preferences.prfPKBackFace);
    });
}

void PokerTable::DrawDealDeck()
{
    m_pile.DrawDealDeck(m_preferences.prfPKBackFace);
}

void PokerTable::shuffleCards()
{
    m_pile.shuffleCards(m_preferences.prfPKBackFace);
}

void PokerTable::measureDelays(Preferences& preferences, Clock& clock, QSizeF strip,
                               std::function<void()> afterRound)
{
    DelayMeter(m_pictures, m_library, preferences, clock, m_errorBox, std::move(afterRound))
        .InitAnimDelay(strip);
}

void PokerTable::close()
{
    m_closed = true;
    m_library.cdtTerm();
}

bool PokerTable::isCardShowing(Slot slot) const
{
    return m_pictures.picPoker[slot]->isShowing();
}

void PokerTable::takeAway(Slot slot)
{
    m_cards[slot] = {};
    m_pictures.picPoker[slot]->setShowing(false);
    describe(slot);
}

void PokerTable::flyCardTo(Slot slot)
{
    // The deck's picture in the table is what is seen during the flight.
    showDeck();
    const std::int32_t backNumber = m_preferences.prfPKBackFace;
    const QPointF start = m_pictures.picDeal[0]->place().topLeft() + flyingCardOffset;
    const QPoint from = start.toPoint();
    const QPoint to = m_pictures.picPoker[slot]->place().topLeft().toPoint();
    OffScreenBox& card = m_pictures.picAnimate;
    card.place.moveTopLeft(start);
    // Where the card lands, its rounded corners show the table of that place.
    card.picture.copyFrom(canvas().kept(), to, card.place.size(), {0, 0});
    m_library.cdtDraw(card.picture, 0, 0, backNumber, drawBack, whiteColour);
    std::int32_t x = from.x();
    std::int32_t y = from.y();
    m_flight.AnimateCard(x, y, to.x(), to.y(), 1, backNumber, drawBack);

    // A flight that broke off has left the table to be drawn on directly, and the deck hidden.
    canvas().setPersistentImage(true);
    m_pictures.picDeal[0]->setShowing(true);
    show(slot, {CardOnTable::Side::back, backNumber, false});
    canvas().refresh();
}

void PokerTable::showFace(Slot slot, std::int16_t cardId, bool finished)
{
    show(slot, {CardOnTable::Side::face, cardId, finished});
    m_pictures.picPoker[slot]->refresh();
}

void PokerTable::showHold(Slot slot, bool held)
{
    if (m_held[slot] == held)
        return;
    m_held[slot] = held;
    const QRectF place = m_pictures.picPoker[slot]->place();
    canvas().presentWithNextFrame(place.adjusted(-4, -4, 4, 4));
    describe(slot);
}

void PokerTable::showDeck()
{
    PictureBox& deck = *m_pictures.picDeal[0];
    const QPointF at = deck.place().topLeft();
    const QSizeF size = deck.place().size();
    canvas().keptForDrawing().copyFrom(deck.picture(), {0, 0}, size, at);
    m_pictures.BoardBuffer.copyFrom(deck.picture(), {0, 0}, size, at);
    deck.setShowing(true);
}

void PokerTable::recover()
{
    canvas().setPersistentImage(true);
    for (const Slot slot : allSlots)
        showHold(slot, false);
    m_pictures.picDeal[0]->setShowing(true);
    canvas().refresh();
}

void PokerTable::paintOutlines(QPainter& painter, double scale) const
{
    const QColor colour = colourOf(static_cast<std::uint32_t>(m_preferences.prfCardOutlineColor));
    for (const Slot slot : allSlots) {
        if (!m_held[slot])
            continue;
        const QRect card = m_pictures.picPoker[slot]->devicePlace();
        const HoldMarker marker(card, scale);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(colour, marker.width));
        painter.setBrush(Qt::NoBrush);
        const double radius = 6 * scale + marker.width / 2;
        painter.drawRoundedRect(marker.Shape1, radius, radius);
        painter.setRenderHint(QPainter::Antialiasing, false);
        painter.setClipRect(card, Qt::IntersectClip);
        painter.fillRect(marker.Shape2, colour);
        painter.fillRect(marker.Shape3, colour);
        painter.setClipping(false);
    }
}

void PokerTable::show(Slot slot, const CardOnTable& card)
{
    m_cards[slot] = card;
    paintCard(slot);
    m_pictures.picPoker[slot]->setShowing(true);
    describe(slot);
}

void PokerTable::paintCard(Slot slot)
{
    const CardOnTable& card = m_cards[slot];
    PictureBox& place = *m_pictures.picPoker[slot];
    place.restoreTableBehind();
    if (card.side != CardOnTable::Side::none)
        m_library.cdtDraw(place.picture(), 0, 0, card.number,
                          card.side == CardOnTable::Side::face ? drawFace : drawBack, whiteColour);
    if (card.hatched)
        layHatch(slot);
}

void PokerTable::layHatch(Slot slot)
{
    Surface& hatch = m_pictures.picAnimate.picture;
    m_painter.paintHatch(hatch);
    Surface& card = m_pictures.picPoker[slot]->picture();
    MaskedBlit(card, card, hatch, wholeOf(hatch), 0, 0, whiteColour);
}

void PokerTable::describe(Slot slot)
{
    PictureBox& place = *m_pictures.picPoker[slot];
    place.setChecked(m_held[slot]);
    place.setAccessibleName(spokenCard(slot, m_cards[slot], m_held[slot]));
}

// Everything is painted again with the pixels of the display that the table has come to. The
// hand goes on.
void PokerTable::followScale()
{
    if (m_closed)
        return;
    // A flight may have been the first to paint in the new pixels, and of them only its own.
    canvas().presentWholeWindowWithNextFrame();
    if (canvas().scale() == canvas().devicePixelRatioF())
        return;
    // A picture that has been spoiled meanwhile stays as it was read.
    guarded(m_errorBox, "followScale", [this] { (void)loadBackground(m_backgroundPath); });
    makePictures();
    std::array<bool, 5> showing{};
    for (const Slot slot : allSlots)
        showing[slot] = isCardShowing(slot);
    m_painter.repaint(m_measures, m_preferences.prfPKBackFace);
    for (const Slot slot : allSlots) {
        paintCard(slot);
        m_pictures.picPoker[slot]->setShowing(showing[slot]);
    }
    showDeck();
    canvas().refresh();
}

} // namespace quillet
