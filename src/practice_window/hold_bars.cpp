#include "practice_window/hold_bars.h"

#include "cards/card_names.h"
#include "cards/device_pixels.h"
#include "cards/small_card.h"

#include <QLocale>
#include <QPainter>

#include <algorithm>

namespace quillet::practice_window
{

namespace
{

constexpr QSize cardSize(22, 30);
constexpr int cardStep = 24;
constexpr int gap = 10;

QString creditsText(double credits)
{
    return QLocale::c().toString(credits, 'f', 2);
}

QColor barColour(bool isPlayers, bool isBest)
{
    if (isBest)
        return {0x2f, 0x9e, 0x6e};
    return isPlayers ? QColor(0xcf, 0x5b, 0x45) : QColor(0x6f, 0x8f, 0xb5);
}

} // namespace

HoldBars::HoldBars(QWidget* parent) : QWidget(parent)
{
    setObjectName("holdBars");
    setFocusPolicy(Qt::TabFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void HoldBars::show(const practice::Verdict& verdict, const std::array<odds::DeckPlace, 5>& cards)
{
    m_rows.clear();
    m_most = std::max(verdict.holds.front().credits, 0.01);
    QStringList spoken;
    for (const practice::ShownHold& shown : verdict.holds) {
        Row row{QString::fromStdString(shown.whose), {}, shown.credits, shown.hold == verdict.held};
        QStringList names;
        for (const odds::DeckPlace card : cards) {
            const auto at = std::ranges::find(verdict.hand.places, card);
            if ((shown.hold >> (at - verdict.hand.places.begin()) & 1U) == 0)
                continue;
            row.faces.push_back(odds::cardAt(card).cardId);
            names.append(cardName(row.faces.back()));
        }
        spoken.append(QString("%1: %2, %3 credits")
                          .arg(row.whose, names.isEmpty() ? "hold nothing" : names.join(", "),
                               creditsText(row.credits)));
        m_rows.push_back(std::move(row));
    }
    setAccessibleName(spoken.join("; "));
    updateGeometry();
    update();
}

int HoldBars::rowHeight() const
{
    return std::max(cardSize.height(), fontMetrics().height()) + 6;
}

QSize HoldBars::sizeHint() const
{
    return {300, rowHeight() * static_cast<int>(m_rows.size()) + 4};
}

void HoldBars::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    QRect place(0, 2, width(), rowHeight());
    for (const Row& row : m_rows) {
        paintRow(painter, row, place);
        place.translate(0, rowHeight());
    }
    if (hasFocus()) {
        painter.setPen(QPen(palette().color(QPalette::Highlight), 1, Qt::DotLine));
        painter.drawRect(rect().adjusted(0, 0, -1, -1));
    }
}

void HoldBars::paintRow(QPainter& painter, const Row& row, const QRect& place) const
{
    int caption = 0;
    for (const Row& each : m_rows)
        caption = std::max(caption, fontMetrics().horizontalAdvance(each.whose));
    const int left = 4 + caption + gap;
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawText(QRect(4, place.top(), caption, place.height()), Qt::AlignVCenter, row.whose);
    if (row.faces.empty())
        painter.drawText(QRect(left, place.top(), 5 * cardStep, place.height()), Qt::AlignVCenter,
                         "no card");
    else
        paintCards(painter, row, {left, place.top() + 3});

    const int start = left + 5 * cardStep + gap;
    const int number = fontMetrics().horizontalAdvance("4000.00") + 6;
    const double length = std::max(0, place.width() - start - number);
    const QRectF bar(start, place.center().y() - 6, std::max(2.0, length * row.credits / m_most),
                     13);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(barColour(row.isPlayers, row.credits >= m_most));
    painter.drawRoundedRect(bar, 3, 3);
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawText(QRectF(bar.right() + 6, place.top(), number, place.height()), Qt::AlignVCenter,
                     creditsText(row.credits));
}

void HoldBars::paintCards(QPainter& painter, const Row& row, QPoint corner) const
{
    const InDevicePixels pixels(painter);
    const QSize size(pixels.length(cardSize.width()), pixels.length(cardSize.height()));
    QPoint at = pixels.at(corner);
    for (const int face : row.faces) {
        painter.drawImage(at, renderSmallCard(face, size));
        at.rx() += pixels.length(cardStep);
    }
}

} // namespace quillet::practice_window
