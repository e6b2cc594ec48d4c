#pragma once

#include "practice/verdict.h"

#include <QWidget>

namespace quillet::practice_window
{

// Compares the holds that matter: whose each is, its cards, and a bar for what it is worth.
class HoldBars : public QWidget
{
    Q_OBJECT

public:
    explicit HoldBars(QWidget* parent = nullptr);

    // The cards in the order in which they lie on the table.
    void show(const practice::Verdict& verdict, const std::array<odds::DeckPlace, 5>& cards);

    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    struct Row {
        QString whose;
        std::vector<int> faces;
        double credits = 0;
        bool isPlayers = false;
    };

    [[nodiscard]] int rowHeight() const;
    void paintRow(QPainter& painter, const Row& row, const QRect& place) const;
    void paintCards(QPainter& painter, const Row& row, QPoint corner) const;

    std::vector<Row> m_rows;
    double m_most = 1; // credits
};

} // namespace quillet::practice_window
