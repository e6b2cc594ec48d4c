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

// A painted table without a window. The deck shows Sleeve backs.
struct PaintedTable {
    PaintedTable()
    {
        std::int32_t width = 0;
        std::int32_t height = 0;
        library.cdtInit(width, height);
        for (PictureBox*& box : picPoker)
            box = new PictureBox(canvas);
        canvas.setFixedSize(800, 514);
        canvas.show();
    }

    void paint(const LoadedPicture& background, double scale)
    {
        painter.sizePictures(measures, scale);
        thePic = background;
        painter.repaint(measures, sleeve);
    }

    static constexpr TableMeasures measures = designedTable;
    static constexpr std::int32_t sleeve = sleeveBack;

    Preferences preferences;
    std::vector<std::string> errors;
    TableCanvas canvas;
    LoadedPicture thePic;
    CardLibrary library;
    DeckPile pile{canvas, library};
    CardBoxes picPoker{};
    TablePainter painter{canvas, thePic, picPoker, pile, library};
    CardFlight flight{canvas, pile, library, preferences,
                      [this](const std::string& text) { errors.push_back(text); }};
};

} // namespace quillet::test
