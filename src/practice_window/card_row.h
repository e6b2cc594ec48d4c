#pragma once

#include "odds/dealt_hand.h"
#include "practice_window/card_button.h"

namespace quillet::practice_window
{

// The table with its five cards.
class CardRow : public QWidget
{
    Q_OBJECT

public:
    explicit CardRow(QWidget* parent = nullptr);

    void show(const std::array<odds::DeckPlace, 5>& cards);
    [[nodiscard]] odds::Hold held() const;
    void toggle(int slot);
    // While an answer is shown, the cards stay as they are.
    void setAnswered(bool answered);
    [[nodiscard]] const std::array<CardButton*, 5>& buttons() const { return m_buttons; }
    // "Ace of spades, Two of clubs ..."
    [[nodiscard]] QString spokenCards() const;

    // The cards become no larger than fits in this height.
    void setMaxHeight(int height);

protected:
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void layOut();

    std::array<odds::DeckPlace, 5> m_cards{};
    std::array<CardButton*, 5> m_buttons{}; // children
    int m_maxHeight = 300;
};

} // namespace quillet::practice_window
