#pragma once

#include "table/card_library.h"
#include "table/deck_pile.h"
#include "table/table_pictures.h"

#include <map>
#include <tuple>

namespace quillet
{

// Paints the table: background, frame, deck and the hatched places of the cards. It knows the
// pictures only.
class TablePainter
{
public:
    TablePainter(TablePictures& pictures, CardLibrary& library, DeckPile& pile)
        : m_pictures(pictures), m_library(library), m_pile(pile)
    {
    }

    // Makes every picture anew for this table and scale. The boxes are sized but not yet placed.
    void sizePictures(const TableMeasures& table, double scale);

    // The background picture becomes the window's own.
    void paintBackground();
    // Before the first game: the frame all round, the pieces at their first places.
    void paintFirstTable(const TableMeasures& table);
    // Before each game: everything but the cards.
    void repaint(const TableMeasures& table, std::int32_t backNumber);

    // The crosshatch on white, which is what an overlay lets through, outside its rounded corners,
    // too.
    void paintHatch(Surface& picture);

private:
    void placeDeck(const TableMeasures& table);
    void placeCards(const TableMeasures& table);
    void paintAroundStatusBar(const TableMeasures& table);
    void paintFrame(const std::vector<FramePlace>& frame);
    void paintPosts(const TableMeasures& table);
    // The picture in this size in device pixels.
    const QImage& stretched(const QImage& picture, QSize size);
    const QImage& framePiece(FramePiece piece) const;
    void copyTableBehind(OffScreenBox& box);
    void layHatches();

    TablePictures& m_pictures;
    CardLibrary& m_library;
    DeckPile& m_pile;

    // Pictures stretched to device pixels, which costs more than all else, by picture and size.
    using StretchKey = std::tuple<qint64, int, int>;
    std::map<StretchKey, QImage> m_stretched;
};

} // namespace quillet
