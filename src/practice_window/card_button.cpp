#include "practice_window/card_button.h"

#include "cards/card_art.h"
#include "cards/card_marks.h"
#include "cards/card_names.h"
#include "cards/device_pixels.h"

#include <QPainter>

namespace quillet::practice_window
{

namespace
{

constexpr int edge = 6;     // around the card, for its outline
constexpr int caption = 24; // below the card
const QColor held(0xff, 0xc8, 0x3d);
const QColor quiet(0xd5, 0xe6, 0xdc);

int cardHeight(int width)
{
    return width * cardArtHeight / cardArtWidth;
}

} // namespace

CardButton::CardButton(std::size_t slot, QWidget* parent) : QCheckBox(parent), m_slot(slot)
{
    setObjectName(QString("card%1").arg(slot + 1));
    setCursor(Qt::PointingHandCursor);
    connect(this, &QCheckBox::toggled, this, &CardButton::describe);
}

void CardButton::showFace(int cardNumber)
{
    m_face = cardNumber;
    m_picture = {};
    setChecked(false);
    describe();
    update();
}

void CardButton::setCardWidth(int width)
{
    m_cardWidth = width;
    setFixedSize(width + 2 * edge, heightFor(width));
}

int CardButton::heightFor(int cardWidth)
{
    return cardHeight(cardWidth) + 2 * edge + caption;
}

void CardButton::describe()
{
    setAccessibleName(spokenCard(m_slot, cardName(m_face), isChecked()));
}

bool CardButton::hitButton(const QPoint& at) const
{
    return rect().contains(at);
}

const QImage& CardButton::picture(QSize deviceSize)
{
    if (m_picture.size() != deviceSize)
        m_picture = renderCard(m_face, deviceSize);
    return m_picture;
}

void CardButton::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const QRect below(0, height() - caption, width(), caption);
    QFont font = painter.font();
    font.setBold(isChecked());
    painter.setFont(font);
    painter.setPen(isChecked() ? held : quiet);
    painter.drawText(below, Qt::AlignCenter,
                     isChecked() ? QString("HELD") : QString::number(m_slot + 1));

    const InDevicePixels pixels(painter);
    const QRect card(pixels.at(QPointF(edge, edge)),
                     QSize(pixels.length(m_cardWidth), pixels.length(cardHeight(m_cardWidth))));
    painter.drawImage(card.topLeft(), picture(card.size()));
    if (isChecked())
        paintHoldMarker(painter, card, devicePixelRatioF(), held);
    if (hasFocus())
        paintFocusFrame(painter, card);
}

} // namespace quillet::practice_window
