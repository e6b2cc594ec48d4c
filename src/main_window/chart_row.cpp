#include "main_window/chart_row.h"

#include "platform/colour_contrast.h"
#include "platform/desktop_colours.h"

#include <QEvent>
#include <QGuiApplication>
#include <QPainter>
#include <QPainterPath>

namespace quillet
{

namespace
{

constexpr double minContrast = 3.0;

// An arrow for the best play, a cross for the missed one, a diamond for a win.
QPainterPath markFor(ChartRowState state)
{
    QPainterPath mark;
    switch (state) {
    case ChartRowState::bestPlay:
        mark.addPolygon(QPolygonF({{-3, -4.5}, {4.5, 0}, {-3, 4.5}}));
        break;
    case ChartRowState::missedPlay:
        mark.addPolygon(QPolygonF({{-4, -2.6},
                                   {-2.6, -4},
                                   {0, -1.4},
                                   {2.6, -4},
                                   {4, -2.6},
                                   {1.4, 0},
                                   {4, 2.6},
                                   {2.6, 4},
                                   {0, 1.4},
                                   {-2.6, 4},
                                   {-4, 2.6},
                                   {-1.4, 0}}));
        break;
    case ChartRowState::winner:
        mark.addPolygon(QPolygonF({{0, -5}, {4.5, 0}, {0, 5}, {-4.5, 0}}));
        break;
    case ChartRowState::base:
        break;
    }
    mark.closeSubpath();
    return mark;
}

QString spokenState(ChartRowState state)
{
    switch (state) {
    case ChartRowState::bestPlay:
        return "best play";
    case ChartRowState::missedPlay:
        return "missed best play";
    case ChartRowState::winner:
        return "winning hand";
    case ChartRowState::base:
        break;
    }
    return {};
}

} // namespace

ChartRow::ChartRow(int row, QWidget* parent) : QLabel(parent)
{
    const auto caption = StrategyChart::caption(row);
    setObjectName(QString("pkLabel%1").arg(row));
    setTextFormat(Qt::PlainText);
    setText(QString::fromLatin1(caption.data(), static_cast<qsizetype>(caption.size())));
    setAttribute(Qt::WA_OpaquePaintEvent);
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

void ChartRow::show(ChartRowColours colours, ChartRowState state)
{
    m_colours = colours;
    m_state = state;
    const QString spoken = spokenState(state);
    setAccessibleName(spoken.isEmpty() ? text() : QString("%1, %2").arg(text().trimmed(), spoken));
    update();
}

QColor ChartRow::textColour() const
{
    if (m_colours.text != windowTextColour)
        return colourOf(m_colours.text);
    // The row's own palette follows the black panel, so it is not used.
    const QColor fromDesktop = QGuiApplication::palette().color(QPalette::WindowText);
    const bool readable = contrast(fromDesktop, colourOf(m_colours.background)) >= minContrast;
    return readable ? fromDesktop : QColor(Qt::black);
}

void ChartRow::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.fillRect(rect(), colourOf(m_colours.background));
    painter.setPen(textColour());
    // A caption that is as wide as its row makes room for the mark.
    const bool inTheWay = fontMetrics().horizontalAdvance(text()) > width() - 2 * markRoom;
    const int left = inTheWay && m_state != ChartRowState::base ? markRoom : 0;
    painter.drawText(rect().adjusted(left, 0, 0, 0), Qt::AlignCenter | Qt::TextSingleLine, text());

    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(5, height() / 2.0);
    painter.fillPath(markFor(m_state), textColour());
}

void ChartRow::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::PaletteChange)
        update();
    QLabel::changeEvent(event);
}

} // namespace quillet
