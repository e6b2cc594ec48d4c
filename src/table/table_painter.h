#pragma once

#include "table/card_library.h"
#include "table/deck_pile.h"
#include "table/picture_box.h"
#include "table/picture_file.h"
#include "table/table_geometry.h"

#include <array>
#include <future>
#include <map>
#include <tuple>

namespace quillet
{

// A picture off the screen with a place on the table.
struct OffScreenBox {
    QRectF place;
    Surface picture;
};

// Paints the table: background, frame, deck and the hatched places of the cards.
class TablePainter
{
public:
    TablePainter(TableCanvas& canvas, const LoadedPicture& background, const CardBoxes& cards,
                 DeckPile& pile, CardLibrary& library);

    // Makes every picture again for this table and scale. The boxes are sized but not yet placed.
    void sizePictures(const TableMeasures& table, double scale);

    void paintBackground();
    // Before the first game: the frame, the deck and the reject pile, which never shows.
    void paintFirstTable(const TableMeasures& table);
    // Before each game: everything but the cards.
    void repaint(const TableMeasures& table, std::int32_t backNumber);

    // Lays the crosshatch over a card's place in the picture.
    void layHatch(Surface& picture, QPointF at) const;

private:
    void paintAroundStatusBar(const TableMeasures& table);
    void paintFrame(const std::vector<FramePlace>& frame);
    void paintPosts(const TableMeasures& table);
    // The picture in this size in device pixels.
    const QImage& stretched(const QImage& picture, QSize size);
    [[nodiscard]] const QImage& framePiece(FramePiece piece) const;
    void layHatches();
    void copyTableBehind(OffScreenBox& box, const QRectF& place);

    TableCanvas& m_canvas;
    const LoadedPicture& m_background;
    const CardBoxes& m_cards;
    DeckPile& m_pile;
    CardLibrary& m_library;
    std::future<std::array<QImage, 4>> m_decodedPieces; // until they are first needed
    std::array<QImage, 4> m_framePieces;                // by FramePiece
    Surface m_hatch; // on white, the colour that an overlay lets through
    OffScreenBox picReject;
    OffScreenBox picRejectBack;
    OffScreenBox picDealBack; // the table behind the deck

    // By picture and size: stretching takes longer than all other painting.
    using StretchKey = std::tuple<qint64, int, int>;
    std::map<StretchKey, QImage> m_stretched;
};

} // namespace quillet
