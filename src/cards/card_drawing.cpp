#include "cards/card_drawing.h"

#include <QFile>

#include <cassert>

namespace quillet
{

CardDrawing::CardDrawing(const QString& name, const QByteArray& colours)
{
    QFile file(":/cards/" + name + ".svg");
    [[maybe_unused]] const bool opened = file.open(QIODevice::ReadOnly);
    assert(opened);
    // The last rule for a class counts.
    [[maybe_unused]] const bool loaded =
        m_svg.load(file.readAll().replace("</style>", colours + "</style>"));
    assert(loaded);
}

void CardDrawing::paint(QPainter& painter)
{
    m_svg.render(&painter, m_svg.viewBoxF());
}

void CardDrawing::paint(QPainter& painter, const QString& id)
{
    assert(m_svg.elementExists(id));
    m_svg.render(&painter, id, m_svg.boundsOnElement(id));
}

} // namespace quillet
