#include "table/table_canvas.h"

#include "table/picture_box.h"

#include <QPainter>

namespace quillet
{

namespace
{

// One pixel more on each side, as device pixels do not end where logical ones do.
QRect expandedByEdge(const QRectF& rect)
{
    return rect.toAlignedRect().adjusted(-1, -1, 1, 1);
}

} // namespace

TableCanvas::TableCanvas(QWidget* parent) : QWidget(parent)
{
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void TableCanvas::resizePictures(QSizeF innerSize, double scale)
{
    m_kept = Surface(innerSize, scale);
    m_screen = m_kept;
}

void TableCanvas::setPersistentImage(bool on)
{
    m_persistentImage = on;
    if (on)
        m_lifted.reset();
}

void TableCanvas::copyPixels(const Surface& source, const QRect& place)
{
    (m_persistentImage ? m_kept : m_screen).copyPixels(source, place, place.topLeft());
    if (!m_persistentImage)
        present({QPointF(place.topLeft()) / scale(), QSizeF(place.size()) / scale()});
}

void TableCanvas::refresh()
{
    m_screen.copyFrom(m_kept, {0, 0}, m_kept.size(), {0, 0});
    repaint();
}

void TableCanvas::present(const QRectF& rect)
{
    repaint(expandedByEdge(rect));
}

void TableCanvas::presentWithNextFrame(const QRectF& rect)
{
    update(expandedByEdge(rect));
}

void TableCanvas::presentWholeWindowWithNextFrame()
{
    // Qt skips opaque child widgets unless each is updated.
    for (QWidget* widget : window()->findChildren<QWidget*>())
        widget->update();
}

void TableCanvas::copyBoxesTo(Surface& surface) const
{
    for (const PictureBox* box : m_boxes)
        if (box->isShowing())
            surface.copyPixels(box->picture(), box->picture().image().rect(),
                               box->devicePlace().topLeft());
}

void TableCanvas::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    // From here on the painter works in device pixels of the pictures.
    const double scale = m_screen.scale();
    if (scale != devicePixelRatioF())
        QMetaObject::invokeMethod(this, &TableCanvas::scaleChanged, Qt::QueuedConnection);
    painter.scale(1.0 / scale, 1.0 / scale);
    painter.drawImage(0, 0, m_screen.image());
    for (const PictureBox* box : m_boxes)
        if (box->isShowing())
            painter.drawImage(box->devicePlace().topLeft(), box->picture().image());

    if (m_overlays) {
        painter.save();
        m_overlays(painter, scale);
        painter.restore();
    }
    if (m_lifted)
        painter.drawImage(m_lifted->topLeft(), m_screen.image(), *m_lifted);
}

} // namespace quillet
