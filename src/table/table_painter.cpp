#include "table/table_painter.h"

#include "cards/card_numbers.h"
#include "table/masked_blit.h"
#include "table/picture_box.h"
#include "table/table_canvas.h"

#include <QPainter>

#include <cmath>

namespace quillet
{

namespace
{

void resize(OffScreenBox& box, QSizeF size, double scale)
{
    box.place.setSize(size);
    box.picture = Surface(size, scale);
}

} // namespace

void TablePainter::sizePictures(const TableMeasures& table, double scale)
{
    const QSizeF card(table.cardWidth, table.cardHeight);
    m_stretched.clear();
    m_pictures.canvas->resizePictures({table.innerWidth, table.innerHeight}, scale);
    m_pictures.BoardBuffer = Surface({table.innerWidth, table.innerHeight}, scale);
    m_pictures.picBuffer = Surface(card, scale);
    resize(m_pictures.picAnimate, card, scale);
    resize(m_pictures.picDealBack, deckSize(table), scale);
    resize(m_pictures.picReject, rejectPileSize(table), scale);
    resize(m_pictures.picRejectBack, rejectPileSize(table), scale);
    for (PictureBox* box : m_pictures.picPoker)
        box->place({box->place().topLeft(), card}, scale);
    for (PictureBox* box : m_pictures.picDeal)
        box->place({box->place().topLeft(), deckSize(table)}, scale);
}

void TablePainter::paintBackground()
{
    Surface& kept = m_pictures.canvas->keptForDrawing();
    kept.fill(Qt::black);
    const LoadedPicture& picture = m_pictures.thePic;
    stretch(kept, picture.image, {{0, 0}, picture.logicalSize});
}

void TablePainter::paintFirstTable(const TableMeasures& table)
{
    paintFrame(firstFrame(table));
    m_pictures.canvas->refresh();
    for (PictureBox* box : m_pictures.picPoker)
        box->copyTableBehind();

    m_pictures.picReject.place = m_pictures.picRejectBack.place = firstRejectPlace(table);
    copyTableBehind(m_pictures.picReject);
    copyTableBehind(m_pictures.picRejectBack);

    for (PictureBox* box : m_pictures.picDeal) {
        box->place(firstDeckPlace(table), m_pictures.canvas->scale());
        box->copyTableBehind();
    }
    m_pictures.picDealBack.place = firstDeckPlace(table);
    copyTableBehind(m_pictures.picDealBack);
    m_pictures.BoardBuffer = m_pictures.canvas->kept();
}

void TablePainter::repaint(const TableMeasures& table, std::int32_t backNumber)
{
    TableCanvas& canvas = *m_pictures.canvas;
    for (PictureBox* box : m_pictures.picDeal)
        box->setShowing(false);
    for (PictureBox* box : m_pictures.picPoker)
        box->setShowing(false);

    paintBackground();
    m_pictures.picReject.place = m_pictures.picRejectBack.place = rejectPlace(table);
    placeDeck(table);
    placeCards(table);
    paintFrame(tableFrame(table));
    QPainter(&canvas.keptForDrawing().pixels())
        .fillRect(deviceRect(statusStrip(table), canvas.scale()), Qt::black);
    for (PictureBox* box : m_pictures.picPoker)
        box->copyTableBehind();
    m_pictures.BoardBuffer = canvas.kept();
    paintFrame({chartFrame(table)});
    paintChartEdge(table);

    m_pile.DrawDealDeck(backNumber);
    layHatches();
    m_pictures.picReject.picture.copyFrom(m_pictures.picRejectBack.picture, {0, 0},
                                          m_pictures.picReject.place.size(), {0, 0});
    for (PictureBox* box : m_pictures.picDeal)
        box->setShowing(true);
    canvas.refresh();
}

void TablePainter::placeDeck(const TableMeasures& table)
{
    const QRectF place = deckPlace(table);
    for (PictureBox* box : m_pictures.picDeal) {
        box->place(place, m_pictures.canvas->scale());
        box->copyTableBehind();
    }
    m_pictures.picDealBack.place = m_pictures.picDeal[0]->place();
    copyTableBehind(m_pictures.picDealBack);
}

void TablePainter::placeCards(const TableMeasures& table)
{
    const auto places = cardPlaces(table);
    for (std::size_t slot = 0; slot < places.size(); ++slot)
        m_pictures.picPoker[slot]->place(places[slot], m_pictures.canvas->scale());
}

void TablePainter::paintFrame(const std::vector<FramePlace>& frame)
{
    for (const FramePlace& place : frame) {
        const QImage& piece = m_pictures.framePieces[static_cast<std::size_t>(place.piece)];
        stretch(m_pictures.canvas->keptForDrawing(), piece, place.rect);
        stretch(m_pictures.BoardBuffer, piece, place.rect);
    }
}

// The piece at the chart's left turns its gilt edge to the table. The chart gets one as well: the
// inner end of the frame's left piece, which looks the other way.
void TablePainter::paintChartEdge(const TableMeasures& table)
{
    constexpr double edge = 4; // logical pixels
    const QImage& left = m_pictures.framePieces[static_cast<std::size_t>(FramePiece::picSide1)];
    const int width = static_cast<int>(std::lround(left.width() * edge / frameSideWidth));
    const QRectF piece = chartFrame(table).rect;
    const QRectF place(piece.right() - edge, piece.top(), edge, piece.height());
    if (m_chartEdge.isNull())
        m_chartEdge = left.copy(left.width() - width, 0, width, left.height());
    stretch(m_pictures.canvas->keptForDrawing(), m_chartEdge, place);
    stretch(m_pictures.BoardBuffer, m_chartEdge, place);
}

void TablePainter::stretch(Surface& surface, const QImage& picture, const QRectF& to)
{
    const QRect target = deviceRect(to, surface.scale());
    if (picture.isNull() || target.isEmpty())
        return;
    QImage& fitting = m_stretched[{picture.cacheKey(), target.width(), target.height()}];
    if (fitting.isNull()) {
        fitting = picture.scaled(target.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        fitting.setDevicePixelRatio(1.0);
    }
    surface.drawPixels(fitting, to.topLeft());
}

void TablePainter::copyTableBehind(OffScreenBox& box)
{
    box.picture.copyFrom(m_pictures.canvas->kept(), box.place.topLeft(), box.place.size(), {0, 0});
}

void TablePainter::paintHatch(Surface& picture)
{
    picture.fill(Qt::white);
    m_library.cdtDraw(picture, 0, 0, hatchBack, drawBack, whiteColour);
}

void TablePainter::layHatches()
{
    Surface& hatch = m_pictures.picAnimate.picture;
    paintHatch(hatch);
    const PixelRect whole = wholeOf(hatch);

    Surface& table = m_pictures.canvas->keptForDrawing();
    for (const PictureBox* box : m_pictures.picPoker)
        MaskedBlit(table, table, hatch, whole, box->place().x(), box->place().y(), whiteColour);
    for (OffScreenBox* back : {&m_pictures.picDealBack, &m_pictures.picRejectBack})
        MaskedBlit(back->picture, back->picture, hatch, whole, 0, 0, whiteColour);
}

} // namespace quillet
