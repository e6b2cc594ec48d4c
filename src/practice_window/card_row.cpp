#include "practice_window/card_row.h"

#include "cards/card_names.h"

#include <QPainter>

#include <algorithm>

namespace quillet::practice_window
{

namespace
{

constexpr int margin = 10;
constexpr int smallestCard = 56;
constexpr int largestCard = 210;

} // namespace

CardRow::CardRow(QWidget* parent) : QWidget(parent)
{
    setObjectName("cards");
    setAccessibleName("Your cards");
    for (std::size_t slot = 0; slot < m_buttons.size(); ++slot)
        m_buttons[slot] = new CardButton(slot, this);
    setMinimumWidth(5 * (smallestCard + 12) + 2 * margin);
    layOut();
}

void CardRow::show(const std::array<odds::DeckPlace, 5>& cards)
{
    m_cards = cards;
    for (std::size_t slot = 0; slot < m_buttons.size(); ++slot)
        m_buttons[slot]->showFace(odds::cardAt(cards[slot]).cardId);
    setAnswered(false);
}

odds::Hold CardRow::held() const
{
    odds::Hold hold = 0;
    for (std::size_t slot = 0; slot < m_buttons.size(); ++slot)
        hold |= m_buttons[slot]->isChecked() ? 1U << slot : 0;
    return hold;
}

void CardRow::toggle(int slot)
{
    CardButton& card = *m_buttons[static_cast<std::size_t>(slot)];
    if (card.isEnabled())
        card.toggle();
}

void CardRow::setAnswered(bool answered)
{
    for (CardButton* card : m_buttons)
        card->setEnabled(!answered);
}

QString CardRow::spokenCards() const
{
    QStringList names;
    for (const odds::DeckPlace place : m_cards)
        names.append(cardName(odds::cardAt(place).cardId));
    return names.join(", ");
}

void CardRow::setMaxHeight(int height)
{
    m_maxHeight = height;
    layOut();
}

void CardRow::resizeEvent(QResizeEvent*)
{
    layOut();
}

void CardRow::layOut()
{
    int card = std::clamp((width() - 2 * margin) / 5 - 15, smallestCard, largestCard);
    while (card > smallestCard && CardButton::heightFor(card) + 2 * margin > m_maxHeight)
        --card;
    setFixedHeight(CardButton::heightFor(card) + 2 * margin);
    const int step = std::min((width() - 2 * margin) / 5, card * 5 / 4 + 12);
    int x = (width() - 5 * step) / 2 + (step - card - 12) / 2;
    for (CardButton* button : m_buttons) {
        button->setCardWidth(card);
        button->move(x, margin + 2);
        x += step;
    }
}

// Green cloth with an inlaid line.
void CardRow::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QRadialGradient cloth(QPointF(width() / 2.0, height() * 0.35), width() * 0.62);
    cloth.setColorAt(0, QColor(0x2a, 0x6f, 0x51));
    cloth.setColorAt(1, QColor(0x14, 0x43, 0x30));
    painter.setPen(Qt::NoPen);
    painter.setBrush(cloth);
    painter.drawRoundedRect(rect(), 10, 10);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(QColor(0xd8, 0xb4, 0x5a, 150), 1));
    painter.drawRoundedRect(QRectF(rect()).adjusted(4.5, 4.5, -4.5, -4.5), 7, 7);
}

} // namespace quillet::practice_window
