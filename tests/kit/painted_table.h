#pragma once

#include "cards/card_numbers.h"
#include "table/card_flight.h"
#include "table/picture_box.h"
#include "table/table_canvas.h"
#include "table/table_painter.h"

#include <string>
#include <vector>

namespace quillet::test
{

// A painted table of our cards without a window, its deck in Sleeve backs.
struct PaintedTable : ErrorBox {
    PaintedTable()
    {
        std::int32_t width = 0;
        std::int32_t height = 0;
        library.cdtInit(width, height);
        pictures.canvas = &canvas;
        for (std::size_t i = pictures.picDeal.size(); i-- > 0;)
            pictures.picDeal.at(i) = new PictureBox(canvas);
        for (PictureBox*& box : pictures.picPoker)
            box = new PictureBox(canvas);
        canvas.setFixedSize(800, 514);
        canvas.show();
    }

    void paint(const LoadedPicture& background, double scale)
    {
        painter.sizePictures(measures, scale);
        pictures.thePic = background;
        painter.repaint(measures, sleeve);
    }

    void showError(const std::string& text) override { errors.push_back(text); }

    static constexpr TableMeasures measures = designedTable;
    static constexpr std::int32_t sleeve = sleeveBack;

    Preferences preferences;
    std::vector<std::string> errors;
    TableCanvas canvas;
    TablePictures pictures;
    CardLibrary library;
    DeckPile pile{pictures, library};
    TablePainter painter{pictures, library, pile};
    CardFlight flight{pictures, library, preferences, *this};
};

} // namespace quillet::test
