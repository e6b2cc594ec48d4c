#pragma once

#include <QLabel>

namespace quillet
{

// A line of text that acts when it is clicked, or when Enter or Space is pressed on it. A double
// click gives clicked() for its first click and doubleClicked() for its second, so whoever wants
// one answer to it connects clicked() alone.
class LinkLabel : public QLabel
{
    Q_OBJECT

public:
    explicit LinkLabel(const QString& text, QWidget* parent = nullptr);

signals:
    void clicked();
    void doubleClicked();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
};

} // namespace quillet
