#pragma once

#include <QLabel>

namespace quillet
{

// A line of text that can be clicked, or activated with Enter or Space. A double click sends
// clicked() for its first click and doubleClicked() for its second; connect only clicked() to react
// once.
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
