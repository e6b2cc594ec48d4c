#pragma once

#include "table/surface.h"

#include <QWidget>

#include <functional>
#include <optional>
#include <vector>

namespace quillet
{

class PictureBox;

// The painted table. It has a kept picture, from which it repaints itself, and a screen picture,
// which is what the player sees. With the persistent image on, drawing goes to the kept picture
// and a refresh shows it; with it off, drawing goes to the display at once and is lost at the
// next refresh. The picture boxes on the table lie over both.
class TableCanvas : public QWidget
{
    Q_OBJECT

public:
    explicit TableCanvas(QWidget* parent = nullptr);

    // New, black pictures of this inner size.
    void resizePictures(QSizeF innerSize, double scale);
    [[nodiscard]] QSizeF innerSize() const { return m_kept.size(); }
    [[nodiscard]] double scale() const { return m_kept.scale(); }

    void setPersistentImage(bool on);

    [[nodiscard]] const Surface& kept() const { return m_kept; }
    // What is drawn on while the persistent image is on.
    [[nodiscard]] Surface& keptForDrawing() { return m_kept; }

    // Copies these device pixels, each to its own place, to where drawing goes at present.
    void copyPixels(const Surface& source, const QRect& place);
    // The kept picture becomes what the player sees, now.
    void refresh();
    // Repaints the rectangle on the display now, or with the next frame that is presented.
    void present(const QRectF& rect);
    void presentWithNextFrame(const QRectF& rect);
    // The next frame is the whole window, and not only what has changed.
    void presentWholeWindowWithNextFrame();

    // The card in flight: these device pixels of the screen picture lie over the boxes until the
    // persistent image is on again.
    void liftOverBoxes(const QRect& place) { m_lifted = place; }

    // What is painted over the boxes, such as hold outlines. The painter counts device pixels.
    using OverlayPainter = std::function<void(QPainter& painter, double scale)>;
    void setOverlays(OverlayPainter overlays) { m_overlays = std::move(overlays); }

    void addBox(PictureBox& box) { m_boxes.push_back(&box); }
    // Copies the pictures of all boxes that are showing, each to its own place.
    void copyBoxesTo(Surface& surface) const;

signals:
    // The display's pixels have become smaller or larger than those of the pictures.
    void scaleChanged();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Surface m_kept;
    Surface m_screen;
    bool m_persistentImage = true;
    std::optional<QRect> m_lifted;
    std::vector<PictureBox*> m_boxes; // children; the table never loses one
    OverlayPainter m_overlays;
};

} // namespace quillet
