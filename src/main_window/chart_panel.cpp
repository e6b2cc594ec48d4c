#include "main_window/chart_panel.h"

#include "main_window/chart_row.h"
#include "main_window/designed_look.h"
#include "main_window/window_layout.h"
#include "platform/accessible_widgets.h"

#include <QFontMetricsF>

#include <cmath>

namespace quillet
{

namespace
{

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
