#include "main_window/chart_row.h"

#include "cards/picture_text.h"
#include "platform/colour_contrast.h"
#include "platform/desktop_colours.h"

#include <QEvent>
#include <QGuiApplication>
#include <QPainter>

namespace quillet
{

namespace
{

constexpr double minContrast = 3.0;

// How a lit row differs from the others, besides its colour.
struct Sign {
    const char* mark; // an arrow, a cross or a diamond, as an outline
    const char* spoken;
};

Sign signOf(ChartRowState state)
{
    switch (state) {
    case ChartRowState::bestPlay:
        return {"M-3 -4.5 L4.5 0 L-3 4.5 Z", "best play"};
    case ChartRowState::missedPlay:
        return {"M-4 -2.6 L-2.6 -4 L0 -1.4 L2.6 -4 L4 -2.6 L1.4 0"
                "L4 2.6 L2.6 4 L0 1.4 L-2.6 4 L-4 2.6 L-1.4 0 Z",
                "missed best play"};
    case ChartRowState::winner:
        return {"M0 -5 L4.5 0 L0 5 L-4.5 0 Z", "winning hand"};
    case ChartRowState::base:
        break;
    }
    return {"", ""};
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
    setAccessibleName(state == ChartRowState::base
                          ? text()
                          : QString("%1, %2").arg(text().trimmed(), QString(signOf(state).spoken)));
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
    painter.fillPath(readPath(signOf(m_state).mark), textColour());
}

void ChartRow::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::PaletteChange)
        update();
    QLabel::changeEvent(event);
}

} // namespace quillet
