#pragma once

#include "platform/click_tracker.h"
#include "table/surface.h"

#include <QRectF>
#include <QWidget>

#include <array>

namespace quillet
{

class TableCanvas;

// A picture on the table: a card place or a deck picture. As a widget it has the clicks, the
// keyboard focus and the accessible name. The canvas paints its picture at exact device pixels.
class PictureBox : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(bool checked READ isChecked)

public:
    explicit PictureBox(TableCanvas& canvas);

    // In logical pixels of the table. The corner is rounded to whole ones, where a flying card
    // lands at every scale. A new size or scale gives a new, black picture.
    void place(const QRectF& place, double scale);
    [[nodiscard]] const QRectF& place() const { return m_place; }
    [[nodiscard]] QRect devicePlace() const;

    [[nodiscard]] Surface& picture() { return m_picture; }
    [[nodiscard]] const Surface& picture() const { return m_picture; }

    // Copies the table behind the box into it and keeps a copy, for the rounded corners of what
    // is painted later.
    void copyTableBehind();
    // Removes everything painted since then.
    void restoreTableBehind();

    // Puts the picture on the display now if the box is showing.
    void refresh();
    // From the next frame on. A box that is not showing is neither painted nor clicked. It stays a
    // visible widget, so that it keeps the keyboard focus during flights.
    void setShowing(bool showing);
    [[nodiscard]] bool isShowing() const { return m_showing; }

    // To a screen reader, a picture that can be checked is a check box.
    void setChecked(bool checked);
    [[nodiscard]] bool isChecked() const { return m_checked; }

public slots:
    // The same as a click, from a screen reader.
    void activate();

signals:
    // Any button.
    void mouseDown();
    void doubleClicked();
    void clicked(); // see ClickTracker

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    TableCanvas& m_canvas;
    ClickTracker m_clicks{*this};
    QRectF m_place;
    Surface m_picture;
    Surface m_behind;
    bool m_showing = false;
    bool m_checked = false;
};

// The card places of a table, left to right.
using CardBoxes = std::array<PictureBox*, 5>;

} // namespace quillet
