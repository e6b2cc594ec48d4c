#include "table/table_painter.h"

#include "cards/card_numbers.h"
#include "table/masked_blit.h"
#include "table/table_canvas.h"

#include <QPainter>

#include <algorithm>

namespace quillet
{

namespace
{

std::array<QImage, 4> framePictures()
{
    std::array<QImage, 4> pictures;
    std::ranges::transform(frameFiles, pictures.begin(), [](const char* file) {
        return QImage(QString(":/frame/%1.png").arg(file))
            .convertToFormat(QImage::Format_ARGB32_Premultiplied);
    });
    return pictures;
}

} // namespace

TablePainter::TablePainter(TableCanvas& canvas, const LoadedPicture& background,
                           const CardBoxes& cards, DeckPile& pile, CardLibrary& library)
    : m_canvas(canvas), m_background(background), m_cards(cards), m_pile(pile), m_library(library),
      m_decodedPieces(std::async(std::launch::async, framePictures))
{
}

void TablePainter::sizePictures(const TableMeasures& table, double scale)
{
    if (m_decodedPieces.valid())
        m_framePieces = m_decodedPieces.get();
    const QSizeF card(table.cardWidth, table.cardHeight);
    m_stretched.clear();
    m_canvas.resizePictures({table.innerWidth, table.innerHeight}, scale);
    for (PictureBox* box : m_cards)
        box->place({box->place().topLeft(), card}, scale);
    m_pile.resize(deckSize(table), scale);
    picReject.picture = Surface(rejectPileSize(table), scale);
    picRejectBack.picture = Surface(rejectPileSize(table), scale);
    picDealBack.picture = Surface(deckSize(table), scale);
    m_hatch = Surface(card, scale);
    m_hatch.fill(Qt::white);
    m_library.cdtDraw(m_hatch, 0, 0, hatchBack, drawBack, whiteColour);
}

void TablePainter::paintBackground()
{
    Surface& kept = m_canvas.keptForDrawing();
    kept.fill(Qt::black);
    const QSize size = deviceRect({{0, 0}, m_background.logicalSize}, kept.scale()).size();
    kept.drawPixels(stretched(m_background.image, size), {0, 0});
}

void TablePainter::paintFirstTable(const TableMeasures& table)
{
    paintFrame(firstFrame(table));
    m_canvas.refresh();
    for (PictureBox* box : m_cards)
        box->copyTableBehind();
    copyTableBehind(picReject, firstRejectPlace(table));
    copyTableBehind(picRejectBack, firstRejectPlace(table));
    m_pile.place(firstDeckPlace(table));
    copyTableBehind(picDealBack, firstDeckPlace(table));
}

void TablePainter::repaint(const TableMeasures& table, std::int32_t backNumber)
{
    m_pile.setShowing(false);
    for (PictureBox* box : m_cards)
        box->setShowing(false);

    paintBackground();
    picReject.place = picRejectBack.place = rejectPlace(table);
    m_pile.place(deckPlace(table));
    copyTableBehind(picDealBack, deckPlace(table));
    const auto places = cardPlaces(table);
    for (std::size_t slot = 0; slot < places.size(); ++slot)
        m_cards[slot]->place(places[slot], m_canvas.scale());
    paintAroundStatusBar(table);
    paintFrame(tableFrame(table));
    for (PictureBox* box : m_cards)
        box->copyTableBehind();
    paintPosts(table);

    m_pile.DrawDealDeck(backNumber);
    layHatches();
    picReject.picture.copyFrom(picRejectBack.picture, {0, 0}, picReject.place.size(), {0, 0});
    m_pile.setShowing(true);
    m_canvas.refresh();
}

// The bar is black. From its end to the chart there is the wood of the lower right corner, which
// the chart hides. The rails, painted later, cover the edges of both.
void TablePainter::paintAroundStatusBar(const TableMeasures& table)
{
    Surface& kept = m_canvas.keptForDrawing();
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
    Surface& kept = m_canvas.keptForDrawing();
    for (const FramePlace& place : frame)
        kept.drawPixels(
            stretched(framePiece(place.piece), deviceRect(place.rect, kept.scale()).size()),
            place.rect.topLeft());
}

// A post has two gilt edges; the right one is that of the frame's left piece. The wood of the rails
// continues above and below it. One post is beside the chart, a short one at the end of the bar.
void TablePainter::paintPosts(const TableMeasures& table)
{
    constexpr double railWood = 9; // logical pixels of a rail's height, up to its gilt
    constexpr double gilt = 4;
    Surface& kept = m_canvas.keptForDrawing();
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
    return m_framePieces[static_cast<std::size_t>(piece)];
}

void TablePainter::layHatches()
{
    Surface& table = m_canvas.keptForDrawing();
    for (const PictureBox* box : m_cards)
        layHatch(table, box->place().topLeft());
    for (OffScreenBox* back : {&picDealBack, &picRejectBack})
        layHatch(back->picture, {0, 0});
}

void TablePainter::layHatch(Surface& picture, QPointF at) const
{
    const QSize card = m_library.cardSize();
    MaskedBlit(picture, picture, m_hatch, {0, 0, card.width(), card.height()}, at.x(), at.y(),
               whiteColour);
}

void TablePainter::copyTableBehind(OffScreenBox& box, const QRectF& place)
{
    box.place = place;
    box.picture.copyFrom(m_canvas.kept(), place.topLeft(), place.size(), {0, 0});
}

} // namespace quillet
