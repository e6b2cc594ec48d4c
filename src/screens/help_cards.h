#pragma once

#include <QObject>
#include <QString>
#include <QTextObjectInterface>

namespace quillet
{

// Shows the hands of the help as small cards. The text has a picture before each hand, which is
// painted anew at the scale of the display and in the size of the letters. The hand stays below
// it as text, to be read aloud, found and copied.
class HelpCards : public QObject, public QTextObjectInterface
{
    Q_OBJECT
    Q_INTERFACES(QTextObjectInterface)

public:
    // Paints the pictures of this document, to which it belongs.
    explicit HelpCards(QTextDocument* document);

    // The hands are the texts of the elements "hand". The cards of the element "hold" that follows
    // are held, and so raised.
    [[nodiscard]] static QString withPictures(const QString& html);

    // What was copied, as text or as HTML, without the places of the pictures.
    [[nodiscard]] static QString withoutPictures(QString copied);

    QSizeF intrinsicSize(QTextDocument* document, int position, const QTextFormat& format) override;
    void drawObject(QPainter* painter, const QRectF& place, QTextDocument* document, int position,
                    const QTextFormat& format) override;
};

} // namespace quillet
