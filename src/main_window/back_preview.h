#pragma once

#include "table/surface.h"

#include <QWidget>

namespace quillet
{

// Shows one card back on the dialog's own ground.
class BackPreview : public QWidget
{
    Q_OBJECT

public:
    explicit BackPreview(QWidget* parent);

    // A fresh picture of this card size, in logical pixels, to be painted and then refreshed.
    [[nodiscard]] Surface& freshPicture(QSize cardSize);

signals:
    // The picture lies on a display of another scale now, and is to be painted anew.
    void scaleChanged();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Surface m_picture;
};

} // namespace quillet
