#pragma once

#include <QCheckBox>
#include <QImage>

namespace quillet::practice_window
{

// A card on the table: a check box that looks like a card, ticked while the card is held.
class CardButton : public QCheckBox
{
    Q_OBJECT

public:
    CardButton(std::size_t slot, QWidget* parent);

    // Shows this face, not held.
    void showFace(int cardNumber);
    // So wide; as high as the card, its outline and the word below it need.
    void setCardWidth(int width);
    [[nodiscard]] static int heightFor(int cardWidth);

protected:
    void paintEvent(QPaintEvent* event) override;
    [[nodiscard]] bool hitButton(const QPoint& at) const override;

private:
    void describe();
    const QImage& picture(QSize deviceSize);

    std::size_t m_slot;
    int m_face = 0;
    int m_cardWidth = 0;
    QImage m_picture;
};

} // namespace quillet::practice_window
