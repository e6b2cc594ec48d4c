#include "table/picture_box.h"

#include "cards/card_marks.h"
#include "table/table_canvas.h"

#include <QAccessible>
#include <QPainter>

#include <cmath>

namespace quillet
{

PictureBox::PictureBox(TableCanvas& canvas) : QWidget(&canvas), m_canvas(canvas)
{
    canvas.addBox(*this);
    m_clicks.setActive(m_showing);
    connect(&m_clicks, &ClickTracker::pressed, this, &PictureBox::mouseDown);
    connect(&m_clicks, &ClickTracker::clicked, this, &PictureBox::clicked);
    connect(&m_clicks, &ClickTracker::doubleClicked, this, &PictureBox::doubleClicked);
}

void PictureBox::place(const QRectF& place, double scale)
{
    if (place.size() != m_place.size() || scale != m_picture.scale() || m_picture.isNull()) {
        m_picture = Surface(place.size(), scale);
        m_behind = m_picture;
    }
    m_place = {QPointF(std::nearbyint(place.x()), std::nearbyint(place.y())), place.size()};
    setGeometry(m_place.toAlignedRect());
}

QRect PictureBox::devicePlace() const
{
    return deviceRect(m_place, m_picture.scale());
}

void PictureBox::copyTableBehind()
{
    m_behind.copyFrom(m_canvas.kept(), m_place.topLeft(), m_place.size(), {0, 0});
    restoreTableBehind();
}

void PictureBox::restoreTableBehind()
{
    m_picture.copyFrom(m_behind, {0, 0}, m_place.size(), {0, 0});
}

void PictureBox::refresh()
{
    if (isShowing())
        m_canvas.present(m_place);
}

void PictureBox::setShowing(bool showing)
{
    if (showing == m_showing)
        return;
    m_showing = showing;
    m_clicks.setActive(showing);
    m_canvas.presentWithNextFrame(m_place);
}

void PictureBox::setChecked(bool checked)
{
    if (checked == m_checked)
        return;
    m_checked = checked;
    QAccessible::State changed;
    changed.checked = true;
    QAccessibleStateChangeEvent event(this, changed);
    QAccessible::updateAccessibility(&event);
}

void PictureBox::activate()
{
    if (!m_showing)
        return;
    emit mouseDown();
    emit clicked();
}

void PictureBox::paintEvent(QPaintEvent*)
{
    if (!hasFocus())
        return;
    QPainter painter(this);
    paintFocusFrame(painter, rect());
}

} // namespace quillet
