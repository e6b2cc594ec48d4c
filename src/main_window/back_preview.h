#pragma once

#include "table/surface.h"

#include <QWidget>

namespace quillet
{

// Shows one card back on the dialog's background.
class BackPreview : public QWidget
{
    Q_OBJECT

public:
    explicit BackPreview(QWidget* parent);

    // A new picture of this card size, in logical pixels. Paint it, then call update().
    [[nodiscard]] Surface& freshPicture(QSize cardSize);

signals:
    // The display now has another scale; the picture must be painted again.
    void scaleChanged();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Surface m_picture;
};

} // namespace quillet
