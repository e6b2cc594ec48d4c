#pragma once

#include "table/card_library.h"

#include <QRectF>

#include <array>

namespace quillet
{

class PictureBox;
class TableCanvas;

// The deck as four pictures at one place: picture k shows 4 - k backs, each two pixels further
// right and one further down than the one below it. The boxes are children of the canvas.
class DeckPile
{
public:
    DeckPile(TableCanvas& canvas, CardLibrary& library);

    // The picture on top, picDeal(0).
    [[nodiscard]] PictureBox& top() { return *picDeal[0]; }
    [[nodiscard]] const std::array<PictureBox*, 4>& boxes() const { return picDeal; }

    void resize(QSizeF size, double scale);
    // Also copies the table behind the pictures.
    void place(const QRectF& place);
    void setShowing(bool showing);

    // Paints the pile with this back.
    void DrawDealDeck(std::int32_t backNumber);

private:
    std::array<PictureBox*, 4> picDeal{};
    CardLibrary& m_library;
};

} // namespace quillet
