#include "main_window/chart_panel.h"

#include "cards/path_text.h"
#include "main_window/designed_look.h"
#include "main_window/window_layout.h"
#include "platform/accessible_widgets.h"
#include "platform/colour_contrast.h"
#include "platform/desktop_colours.h"

#include <QEvent>
#include <QFontMetricsF>
#include <QGuiApplication>
#include <QPainter>

#include <cmath>

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

constexpr int border = 1;
constexpr int rowWidth = 167;
constexpr int captionPixels = 11;
constexpr int rowPixels = 13; // 9.75 points
constexpr int minRowPixels = 9;
constexpr int counterWidth = 52;

enum class Reader { hears, doesNotHear };

QLabel* whiteLabel(QWidget* parent, const QString& name, const QString& text, bool bold,
                   Reader reader)
{
    auto* label = new QLabel(parent);
    if (reader == Reader::doesNotHear)
        presentAs(*label, QAccessible::NoRole);
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    label->setText(text);
    label->setFont(designedFont(captionPixels, bold));
    label->setAlignment(Qt::AlignCenter);
    setColour(*label, QPalette::WindowText, Qt::white);
    return label;
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

ChartPanel::ChartPanel(StrategyChart& chart, QWidget* parent) : QWidget(parent), m_chart(chart)
{
    setObjectName("picPokerLabels");
    setAccessibleName("Strategy chart");
    setAutoFillBackground(true);
    setColour(*this, QPalette::Window, Qt::black);

    m_lblHands = addCounter("Label2", "Hands", 228, 600, "lblHands");
    m_lblWon = addCounter("Label3", "Won", 1080, 420, "lblWon");
    m_lblTotal = addCounter("Label1", "Total", 1752, 480, "lblTotal");

    for (int row = 0; row < chartRows; ++row) {
        m_rows[static_cast<std::size_t>(row)] = new ChartRow(row, this);
        showRow(row);
    }
    m_chart.onRowChanged([this](int row) { showRow(row); });
    showCounters({});
}

QLabel* ChartPanel::addCounter(const QString& captionName, const QString& caption,
                               double captionLeft, double captionWidth, const QString& valueName)
{
    const int centre =
        static_cast<int>(std::lround((captionLeft + captionWidth / 2) / designTwips));
    // The accessible name of the value includes the caption.
    QLabel* captionLabel = whiteLabel(this, captionName, caption, false, Reader::doesNotHear);
    captionLabel->setGeometry(border + centre - counterWidth / 2, border - 2, counterWidth, 16);
    QLabel* value = whiteLabel(this, valueName, "0", true, Reader::hears);
    value->setGeometry(border + centre - counterWidth / 2, border + 14, counterWidth, 16);
    captionLabel->setBuddy(value);
    return value;
}

void ChartPanel::layoutChartRows()
{
    const double innerHeight = height() - 2 * border;
    const auto places = StrategyChart::layoutChartRows(innerHeight * designTwips);
    for (std::size_t row = 0; row < places.size(); ++row) {
        const auto edge = [](double position) {
            return border + static_cast<int>(std::lround(position / designTwips));
        };
        const int top = edge(places[row].top);
        const int bottom = edge(places[row].top + places[row].height);
        m_rows[row]->setGeometry(border, top, rowWidth, bottom - top);
    }
    fitRowFont();
}

// Uses the largest size, up to the designed one, at which every caption fits its row.
void ChartPanel::fitRowFont()
{
    const int rowHeight = m_rows[chartRows - 1]->height();
    for (int pixels = rowPixels; pixels >= minRowPixels; --pixels) {
        const QFont font = designedFont(pixels, false);
        const QFontMetricsF metrics(font);
        bool fits = metrics.height() <= rowHeight;
        for (const ChartRow* row : m_rows)
            fits = fits && metrics.horizontalAdvance(row->text()) <= rowWidth - ChartRow::markRoom;
        if (!fits && pixels > minRowPixels)
            continue;
        for (ChartRow* row : m_rows)
            row->setFont(font);
        return;
    }
}

void ChartPanel::showRow(int row)
{
    ChartRow& label = *m_rows[static_cast<std::size_t>(row)];
    label.show(m_chart.colours(row), m_chart.state(row));
    const bool lit = m_chart.state(row) != ChartRowState::base;
    setAccessibleDescription(lit ? label.accessibleName() : QString());
}

void ChartPanel::showCounters(const Counters& counters)
{
    const auto show = [](QLabel* label, const QString& name, std::int16_t value) {
        const QString spoken = QString("%1 %2").arg(name).arg(value);
        if (label->accessibleName() == spoken)
            return; // a reader would say it again
        label->setText(QString::number(value));
        // A deal is charged just before flights, which handle no events.
        label->repaint();
        label->setAccessibleName(spoken);
    };
    show(m_lblHands, "Hands", counters.hands);
    show(m_lblWon, "Won", counters.won);
    show(m_lblTotal, "Total", counters.total);
}

} // namespace quillet
