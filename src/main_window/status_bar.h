#pragma once

#include <QLabel>
#include <QWidget>

namespace quillet
{

// Where the finger tip is in the bar's pointer. X11 counts a pointer in device pixels, all other
// platforms in logical ones.
[[nodiscard]] QPoint pointerTip(double scale, const QString& platform);

// The bar under the table, black where the table is. A click on it opens a web page; a click on
// the text in it does not.
class StatusBar : public QWidget
{
    Q_OBJECT

public:
    explicit StatusBar(QWidget* parent);

    void setTextColour(const QColor& colour);
    // Horizontally, in the bar's present width.
    void centreText();
    // In the pixels of the present display.
    void makePointer();

signals:
    void clicked();

private:
    QLabel* m_lblstatus; // a child
};

} // namespace quillet
