#pragma once

#include <QByteArray>
#include <QPainter>
#include <QString>
#include <QSvgRenderer>

namespace quillet
{

// An SVG file of assets/cards/, in the units of the card's grid.
class CardDrawing
{
public:
    // `colours` are CSS rules that replace some of the file.
    explicit CardDrawing(const QString& name, const QByteArray& colours = {});

    void paint(QPainter& painter);
    // Only the element with this id.
    void paint(QPainter& painter, const QString& id);

private:
    QSvgRenderer m_svg;
};

} // namespace quillet
