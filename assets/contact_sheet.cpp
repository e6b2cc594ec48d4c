// Draws all card faces and backs on one sheet, at scale 1 or 2, for a look at the artwork:
//   cmake --build --preset release --target contact_sheet
//   build/release/assets/contact_sheet FOLDER 2

#include "cards/card_art.h"
#include "cards/card_numbers.h"
#include "engine/card.h"

#include <QDir>
#include <QImage>
#include <QPainter>

#include <cstdio>
#include <cstdlib>

namespace
{

constexpr QRgb tableColour = 0xff4d4a2c;
constexpr int gap = 8;
constexpr int columns = 13;
constexpr int rows = 5;

// A row for each suit, aces first, and a row of backs.
int cardAt(int row, int column)
{
    return row < 4 ? quillet::cardIdOf(column + 1, row) : quillet::firstBack + column;
}

QImage sheetAt(int scale)
{
    using namespace quillet;
    const QSize card(cardArtWidth * scale, cardArtHeight * scale);
    const QSize step(card.width() + gap * scale, card.height() + gap * scale);
    QImage sheet(columns * step.width() + gap * scale, rows * step.height() + gap * scale,
                 QImage::Format_RGB32);
    sheet.fill(tableColour);
    QPainter painter(&sheet);
    for (int row = 0; row < rows; ++row)
        for (int column = 0; column < columns; ++column)
            painter.drawImage(gap * scale + column * step.width(),
                              gap * scale + row * step.height(),
                              renderCard(cardAt(row, column), card));
    return sheet;
}

} // namespace

int main(int argc, char** argv)
{
    const int scale = argc == 3 ? std::atoi(argv[2]) : 0;
    if (scale != 1 && scale != 2) {
        std::fprintf(stderr, "usage: contact_sheet FOLDER SCALE\n");
        return 2;
    }
    const QDir folder(QString::fromLocal8Bit(argv[1]));
    const char* name = scale == 1 ? "cards.png" : "cards@2x.png";
    const bool written = sheetAt(scale).save(folder.filePath(name));
    if (!written)
        std::fprintf(stderr, "contact_sheet: cannot write to %s\n", argv[1]);
    return written ? 0 : 1;
}
