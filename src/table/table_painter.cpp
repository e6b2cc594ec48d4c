#include "table/table_painter.h"

#include "cards/card_numbers.h"
#include "table/masked_blit.h"
#include "table/picture_box.h"
#include "table/table_canvas.h"

#include <QPainter>

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
    const QSize size = deviceRect({{0, 0}, picture.logicalSize}, kept.scale()).size();
    kept.drawPixels(stretched(picture.image, size), {0, 0});
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
    paintAroundStatusBar(table);
    paintFrame(tableFrame(table));
    for (PictureBox* box : m_pictures.picPoker)
        box->copyTableBehind();
    paintPosts(table);
    m_pictures.BoardBuffer = canvas.kept();

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

// The bar is black. From its end to the chart there is the wood of the table's lower right corner,
// which the chart hides. Both go under the rails, which are painted later.
void TablePainter::paintAroundStatusBar(const TableMeasures& table)
{
    Surface& kept = m_pictures.canvas->keptForDrawing();
    const QRectF bar = statusBarPlace(table);
    const double top = bar.top() - frameEdgeHeight / 2;
    const double height = table.innerHeight - top;
    const QRectF black(0, top, bar.right() + frameSideWidth / 2, height);
    QPainter(&kept.pixels()).fillRect(deviceRect(black, kept.scale()), Qt::black);
    const double width = chartPlace(table).left() - bar.right();
    kept.copyFrom(kept, {table.innerWidth - width, top - height}, {width, height},
                  {bar.right(), top});
}

void TablePainter::paintFrame(const std::vector<FramePlace>& frame)
{
    Surface& kept = m_pictures.canvas->keptForDrawing();
    for (const FramePlace& place : frame)
        kept.drawPixels(
            stretched(framePiece(place.piece), deviceRect(place.rect, kept.scale()).size()),
            place.rect.topLeft());
}

// A post has two gilt edges, of which the right one is that of the frame's left piece. Above and
// below it the wood of the rails goes on. One lies along the chart, a short one ends the bar.
void TablePainter::paintPosts(const TableMeasures& table)
{
    constexpr double railWood = 9; // logical pixels of a rail's height, up to its gilt
    constexpr double gilt = 4;
    Surface& kept = m_pictures.canvas->keptForDrawing();
    const double scale = kept.scale();
    const QRect post = deviceRect(chartFrame(table).rect, scale);
    const int wood = deviceSize(railWood, scale);
    const QRect shaft = post.adjusted(0, wood, 0, -wood);
    QPainter(&kept.pixels())
        .drawImage(shaft.topLeft(), stretched(framePiece(FramePiece::picSide2), post.size()),
                   shaft.translated(-post.topLeft()));
    const int edge = deviceSize(gilt, scale);
    const QRect leftEdge(post.width() - edge, shaft.top(), edge, shaft.height());
    kept.copyPixels(kept, leftEdge, leftEdge.topLeft() + QPoint(post.left(), 0));

    const QRectF bar = statusBarPlace(table);
    if (chartFrame(table).rect.left() < bar.right() + frameSideWidth)
        return;
    const QRect lower = shaft.adjusted(0, deviceOrigin(bar.top(), scale) - shaft.top(), 0, 0);
    kept.copyPixels(kept, lower, {deviceOrigin(bar.right(), scale), lower.top()});
}

const QImage& TablePainter::stretched(const QImage& picture, QSize size)
{
    QImage& fitting = m_stretched[{picture.cacheKey(), size.width(), size.height()}];
    if (fitting.isNull() && !picture.isNull()) {
        fitting = picture.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        fitting.setDevicePixelRatio(1.0);
    }
    return fitting;
}

const QImage& TablePainter::framePiece(FramePiece piece) const
{
    return m_pictures.framePieces[static_cast<std::size_t>(piece)];
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
