#pragma once

#include "table/surface.h"

#include <QWidget>

#include <functional>
#include <optional>
#include <vector>

namespace quillet
{

class PictureBox;

// The painted table. It has a kept picture and a screen picture, which is what the player sees.
// With the persistent image on, drawing goes to the kept picture and a refresh shows it. With it
// off, drawing goes to the display at once and is lost at the next refresh. The picture boxes on
// the table are painted over both.
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
    // For drawing while the persistent image is on.
    [[nodiscard]] Surface& keptForDrawing() { return m_kept; }

    // Copies these device pixels to the same place in the picture that drawing goes to.
    void copyPixels(const Surface& source, const QRect& place);
    // Shows the kept picture now.
    void refresh();
    // Repaints the rectangle on the display now, or with the next frame that is presented.
    void present(const QRectF& rect);
    void presentWithNextFrame(const QRectF& rect);
    // The next frame is the whole window, and not only what has changed.
    void presentWholeWindowWithNextFrame();

    // For the flying card: paints these device pixels of the screen picture over the boxes until
    // the persistent image is on again.
    void liftOverBoxes(const QRect& place) { m_lifted = place; }

    // Painted over the boxes, such as hold outlines. The painter works in device pixels.
    using OverlayPainter = std::function<void(QPainter& painter, double scale)>;
    void setOverlays(OverlayPainter overlays) { m_overlays = std::move(overlays); }

    void addBox(PictureBox& box) { m_boxes.push_back(&box); }
    // Copies the pictures of all boxes that are showing, each to its own place.
    void copyBoxesTo(Surface& surface) const;

signals:
    // The display now has another scale than the pictures.
    void scaleChanged();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Surface m_kept;
    Surface m_screen;
    bool m_persistentImage = true;
    std::optional<QRect> m_lifted;
    std::vector<PictureBox*> m_boxes; // children; never removed
    OverlayPainter m_overlays;
};

} // namespace quillet
