#pragma once

#include <QLabel>
#include <QWidget>

namespace quillet
{

// The position of the fingertip in the bar's pointer. X11 uses device pixels, all other platforms
// logical ones.
[[nodiscard]] QPoint pointerTip(double scale, const QString& platform);

// The bar under the table, black where the table is. A click on it opens a web page; a click on
// the text in it does not.
class StatusBar : public QWidget
{
    Q_OBJECT

public:
    explicit StatusBar(QWidget* parent);

    void setTextColour(const QColor& colour);
    // Horizontally, in the bar's current width.
    void centreText();
    // At the scale of the current display.
    void makePointer();

signals:
    void clicked();

private:
    QLabel* m_lblstatus; // a child
};

} // namespace quillet
