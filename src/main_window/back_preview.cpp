#include "main_window/back_preview.h"

#include <QPainter>

namespace quillet
{

BackPreview::BackPreview(QWidget* parent) : QWidget(parent)
{
    setObjectName("picBacks");
}

Surface& BackPreview::freshPicture(QSize cardSize)
{
    m_picture = Surface(cardSize, devicePixelRatioF());
    m_picture.makeTransparent(); // the corners show the page
    return m_picture;
}

void BackPreview::paintEvent(QPaintEvent*)
{
    if (m_picture.isNull())
        return;
    if (m_picture.scale() != devicePixelRatioF())
        QMetaObject::invokeMethod(this, &BackPreview::scaleChanged, Qt::QueuedConnection);
    QPainter painter(this);
    painter.scale(1.0 / m_picture.scale(), 1.0 / m_picture.scale());
    const QPointF corner =
        QPointF(width() - m_picture.size().width(), height() - m_picture.size().height()) / 2 *
        m_picture.scale();
    painter.drawImage(corner.toPoint(), m_picture.image());
}

} // namespace quillet
